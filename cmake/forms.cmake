# The forms library: all of the project that knows Qt.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
# What sounds are played with.
if(WIN32)
    set(player winmm)
else()
    find_package(Qt6 6.4 REQUIRED COMPONENTS Multimedia)
    set(player Qt6::Multimedia)
endif()

add_library(tessaro_forms STATIC)
# The first format of resources holds no dates, so that each build gives the same bytes; and not each Qt
# unpacks zstd, least of all the one for Windows.
set_target_properties(tessaro_forms PROPERTIES AUTOMOC ON AUTORCC ON
    AUTORCC_OPTIONS "--format-version;1;--no-zstd")
target_sources(tessaro_forms PRIVATE ${CMAKE_SOURCE_DIR}/resources/tessaro.qrc)
target_link_libraries(tessaro_forms PUBLIC tessaro_logic Qt6::Widgets PRIVATE ${player})
target_compile_definitions(tessaro_forms PUBLIC
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
tessaro_sanitize(tessaro_forms)
# What most forms include; reading it took them two thirds of their time.
target_precompile_headers(tessaro_forms PRIVATE
    <QApplication> <QBoxLayout> <QHeaderView> <QLabel> <QLineEdit> <QMenu> <QMouseEvent> <QPainter> <QPushButton>)

# Not by AUTOUIC: it does not tell Ninja which headers it writes, and a change of an .ui alone came
# into the program one build late. They go where it wrote them, so that no older one is found first.
set(ui_folder ${CMAKE_BINARY_DIR}/tessaro_forms_autogen/include)
file(MAKE_DIRECTORY ${ui_folder})
file(GLOB_RECURSE ui_files CONFIGURE_DEPENDS src/*.ui)
foreach(ui_file ${ui_files})
    get_filename_component(form ${ui_file} NAME_WE)
    set(header ${ui_folder}/ui_${form}.h)
    add_custom_command(OUTPUT ${header} DEPENDS ${ui_file}
        COMMAND Qt6::uic -o ${header} ${ui_file} VERBATIM)
    target_sources(tessaro_forms PRIVATE ${header})
endforeach()
