// The help pages themselves: what they hold, and that nothing in them leads nowhere.

#include <gmock/gmock.h>

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QXmlStreamReader>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "kit/look/pictures.h"
#include "kit/look/text.h"

namespace tessaro {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

using Texts = std::multiset<std::string>;

struct Page {
    const char* file;
    const char* title;
};

const Page pages[] = {{"console.htm", "Unreal Console Commands"},
                      {"servers.htm", "Running UT Servers"},
                      {"admin.htm", "Server Admin Tutorial"}};

QByteArray bytesOf(const char* file) {
    loadResources();
    QFile stored(QStringLiteral(":/help/") + QLatin1String(file));
    EXPECT_TRUE(stored.open(QIODevice::ReadOnly)) << file;
    return stored.readAll();
}

// Text and attributes of all elements of one kind, as the page is written.
struct Element {
    std::string text;
    QXmlStreamAttributes attributes;
};

std::vector<Element> elements(const char* file, const char* kind) {
    QXmlStreamReader reader(bytesOf(file));
    std::vector<Element> found;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement ||
            reader.name() != QLatin1String(kind))
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        found.push_back(
            {fromQt(reader.readElementText(QXmlStreamReader::IncludeChildElements)), attributes});
    }
    EXPECT_FALSE(reader.hasError()) << file << ": " << fromQt(reader.errorString());
    return found;
}

// The values of an attribute of all elements of one kind that have it.
Texts attributes(const char* file, const char* kind, const char* name) {
    Texts values;
    for (const Element& element : elements(file, kind))
        if (element.attributes.hasAttribute(QLatin1String(name)))
            values.insert(fromQt(element.attributes.value(QLatin1String(name)).toString()));
    return values;
}

// What stands in a first cell of a row as `<td><code>...</code></td>`.
Texts commandsInTables(const char* file) {
    QXmlStreamReader reader(bytesOf(file));
    Texts commands;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement ||
            reader.name() != QLatin1String("tr"))
            continue;
        if (!reader.readNextStartElement() || reader.name() != QLatin1String("td")) continue;
        if (reader.readNext() != QXmlStreamReader::StartElement ||
            reader.name() != QLatin1String("code"))
            continue;
        const QString command = reader.readElementText();
        if (reader.readNext() == QXmlStreamReader::EndElement) commands.insert(fromQt(command));
    }
    return commands;
}

// One line of the list of commands: page, kind, command.
std::vector<QStringList> commandList() {
    std::vector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(bytesOf("commands.txt")).split(QLatin1Char('\n')))
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            rows.push_back(line.split(QLatin1Char('\t')));
    return rows;
}

Texts listedCommands(const char* file) {
    Texts commands;
    for (const QStringList& row : commandList())
        if (row[0] == QLatin1String(file)) commands.insert(fromQt(row.value(2)));
    return commands;
}

// The names of all places in a page that a link can jump to, as the browser sees them.
Texts targetsShown(const QTextDocument& document) {
    Texts targets;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            for (const QString& name : fragment.fragment().charFormat().anchorNames())
                targets.insert(fromQt(name));
    }
    return targets;
}

Texts jumpsShown(const QTextDocument& document) {
    Texts jumps;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QString address = fragment.fragment().charFormat().anchorHref();
            if (!address.isEmpty()) jumps.insert(fromQt(address));
        }
    }
    return jumps;
}

TEST(HelpPages, HaveTheirTitlesAndTheirSize) {
    for (const Page& page : pages) {
        const auto titles = elements(page.file, "title");
        ASSERT_EQ(titles.size(), 1u) << page.file;
        EXPECT_EQ(titles[0].text, page.title);
        EXPECT_GE(bytesOf(page.file).size(), 18000) << page.file;
        EXPECT_LE(bytesOf(page.file).size(), 26000) << page.file;
    }
}

TEST(HelpPages, NoLinkLeadsOutside) {
    for (const Page& page : pages)
        EXPECT_THAT(attributes(page.file, "a", "href"), Each(StartsWith("#"))) << page.file;
}

TEST(HelpPages, NothingIsFetchedFromElsewhere) {
    for (const Page& page : pages)
        for (const char* kind : {"img", "link", "script", "iframe", "object", "base", "meta"})
            EXPECT_THAT(elements(page.file, kind), IsEmpty()) << page.file << ": " << kind;
}

TEST(HelpPages, EveryJumpHasItsTargetAndNoTargetStandsTwice) {
    for (const Page& page : pages) {
        QTextDocument document;
        document.setHtml(QString::fromUtf8(bytesOf(page.file)));
        const Texts targets = targetsShown(document);
        const Texts jumps = jumpsShown(document);
        EXPECT_GE(jumps.count("#top"), 1u) << page.file;
        for (const std::string& jump : jumps)
            EXPECT_EQ(targets.count(jump.substr(1)), 1u) << page.file << ": " << jump;
    }
}

TEST(HelpPages, TheContentsLeadToEveryChapter) {
    for (const Page& page : pages) {
        const Texts jumps = attributes(page.file, "a", "href");
        for (const std::string& chapter : attributes(page.file, "a", "name"))
            EXPECT_GE(jumps.count("#" + chapter), 1u) << page.file << ": " << chapter;
    }
}

TEST(HelpPages, TheCommandsOfEachPagesTablesAreThoseOfTheList) {
    for (const Page& page : pages) {
        EXPECT_THAT(commandsInTables(page.file), Not(IsEmpty())) << page.file;
        EXPECT_EQ(commandsInTables(page.file), listedCommands(page.file)) << page.file;
    }
}

TEST(HelpPages, NoCommandIsListedTwice) {
    std::map<std::string, int> times;
    for (const QStringList& row : commandList()) ++times[fromQt(row.value(2))];
    std::erase_if(times, [](const auto& command) { return command.second == 1; });
    EXPECT_THAT(times, IsEmpty());
}

TEST(HelpPages, TheListNamesPageKindAndCommandOnEachLine) {
    std::set<std::string> files;
    for (const QStringList& row : commandList()) {
        ASSERT_EQ(row.size(), 3) << fromQt(row.join(QLatin1Char('|')));
        for (const QString& column : row)
            EXPECT_EQ(column, column.trimmed()) << fromQt(row.join(QLatin1Char('|')));
        files.insert(fromQt(row[0]));
    }
    EXPECT_THAT(files, ElementsAre("admin.htm", "console.htm", "servers.htm"));
}

}  // namespace
}  // namespace tessaro
