# The part of scripts/floors that judges: reads the names of the sources, and them, from src/.

function folder_of(file) { return file ~ /\// ? substr(file, 1, match(file, /\/[^\/]*$/) - 1) : "." }
function stem_of(file) { sub(/.*\//, "", file); sub(/\.[^.]*$/, "", file); return file }
function wrong(text) { print "src/" text; failed = 1 }

function floor(folder) {
    if (folder == "platform/runtime") return 1
    if (folder == "platform/text") return 2
    if (folder == "platform/files") return 3
    if (folder == "platform/outside" || folder == "platform/profile") return 4
    if (folder ~ /^platform/) return 5
    if (folder ~ /^kit/) return 6
    if (folder == "core") return 7
    if (folder == "shell") return 8
    if (folder == "app") return 10
    if (folder == ".") return 11
    return 9
}
function is_tool(folder) { return floor(folder) == 9 }

# Notes the forms of a folder and of those in it.
function read_list(list,   line, text, folder, n, names, i) {
    while ((getline line < list) > 0) { sub(/#.*/, "", line); text = text " " line }
    close(list)
    folder = folder_of(list)
    listed[folder] = 1
    if (text ~ /ONLY_FORMS/) only_forms[folder] = 1
    if (match(text, /FORMS [^)]*/)) {
        n = split(substr(text, RSTART + 6, RLENGTH - 6), names, " ")
        for (i = 1; i <= n; ++i) form[folder "/" names[i]] = 1
    }
}
# The names that a source includes, as it spells them, between blanks.
function includes(file,   line, text) {
    while ((getline line < file) > 0) {
        if (line !~ /^[ \t]*#[ \t]*include/) continue
        gsub(/^[^"<]*["<]|[">].*$/, "", line)
        text = text " " line
    }
    close(file)
    return text
}
function has_qt(headers) { return headers ~ /(^| )(Q[A-Zt]|ui_)/ }

# The folder with the list that takes in a file, or nothing.
function list_for(file,   folder) {
    for (folder = folder_of(file); folder != "."; folder = folder_of(folder)) {
        if (folder in listed) return folder
    }
    return ""
}
# A header without a source is a form's if it says so itself.
function is_form(file,   list) {
    list = list_for(file)
    return list in only_forms || (list "/" stem_of(file)) in form || file in qt_headers
}

# One operating system's folder; only there its headers and conditions of the preprocessor are met.
function system_of(folder) {
    if (folder ~ /^platform\/(posix|windows)$/) return folder
    return folder ~ /^kit\/outside\/(multimedia|winmm)$/ ? folder : ""
}
function is_of_system(header) {
    return header ~ /^(sys|linux)\// || header ~ /^(windows|unistd|fcntl|dirent|poll|pwd|spawn)\.h$/
}
function read_conditions(file,   line) {
    while ((getline line < file) > 0) {
        if (line ~ /^[ \t]*#[ \t]*(if|elif)/) wrong(file " has a condition: " line)
    }
    close(file)
}

function arrow(file, header,   from, to) {
    from = folder_of(file)
    to = folder_of(header)
    if (from == to) return
    if (system_of(to) != "") wrong(file " includes " header ", which one operating system has.")
    if (floor(to) > floor(from)) wrong(file " includes " header ", which is a floor above it.")
    if (is_tool(from) && is_tool(to) && index(" " shared " ", " " header " ") == 0) {
        wrong(file " includes " header ", which belongs to another tool.")
    }
    if (!((from, to) in because)) {
        because[from, to] = file
        targets[from] = targets[from] " " to
    }
}
function read_source(file,   logic, n, headers, i, header) {
    logic = file != "main.cpp" && !is_form(file)
    if (file != "main.cpp" && list_for(file) == "") wrong(file " is taken in by no CMakeLists.txt.")
    n = split(includes(file), headers, " ")
    for (i = 1; i <= n; ++i) {
        header = headers[i]
        if (logic && (has_qt(header) || (header in known && is_form(header)))) {
            wrong(file " includes " header ": logic may not, and FORMS does not name it as a form.")
        }
        if (header in known) arrow(file, header)
        if (is_of_system(header) && system_of(folder_of(file)) == "") {
            wrong(file " includes " header ", which one operating system has.")
        }
    }
    if (system_of(folder_of(file)) == "") read_conditions(file)
}

# Follows the arrows from a folder; one that leads to a folder on the way closes a ring.
function follow(folder,   next_folders, n, i) {
    state[folder] = "on the way"
    n = split(targets[folder], next_folders, " ")
    way[++depth] = folder
    for (i = 1; i <= n; ++i) {
        if (state[next_folders[i]] == "on the way") report_ring(next_folders[i])
        else if (state[next_folders[i]] == "") follow(next_folders[i])
    }
    --depth
    state[folder] = "done"
}
function report_ring(first,   i, text, to) {
    for (i = depth; way[i] != first; --i) {}
    for (; i <= depth; ++i) {
        to = i < depth ? way[i + 1] : first
        text = text "\n    " way[i] " -> " to " (" because[way[i], to] ")"
    }
    wrong(first " is in a ring of folders:" text)
}

/CMakeLists\.txt$/ { if (folder_of($0) != ".") read_list($0); next }
{ known[$0] = 1; files[++count] = $0 }
END {
    for (i = 1; i <= count; ++i) {
        source = files[i]
        sub(/h$/, "cpp", source)
        if (files[i] ~ /\.h$/ && !(source in known) && has_qt(includes(files[i]))) {
            qt_headers[files[i]] = 1
        }
    }
    for (i = 1; i <= count; ++i) {
        source = files[i]
        if (!sub(/ui$/, "cpp", source)) read_source(source)
        else if (!(source in known) || !is_form(source)) wrong(files[i] " has no form of its name.")
    }
    # Every arrow that runs up closes rings, too: they would only hide it.
    for (i = 1; i <= count && !failed; ++i) {
        if (state[folder_of(files[i])] == "") follow(folder_of(files[i]))
    }
    exit failed
}
