#include "shell/webpage.h"

#include <QFileInfo>
#include <QUrl>

#include "core/centerform.h"
#include "kit/look/pictures.h"
#include "kit/look/text.h"
#include "shell/Skins.h"
#include "ui_webpage.h"

namespace tessaro {
namespace {

// Light enough for the dark ground that every page has, whatever the skin.
constexpr QColor link(150, 205, 255);
constexpr QColor visitedLink(215, 190, 255);

constexpr int pageMargin = 12;

constexpr QLatin1String errorPage(
    "<h1>This page cannot be shown</h1>"
    "<p>There is nothing at the address</p>"
    "<pre style=\"white-space: pre-wrap\">%1</pre>"
    "<p>Close this window and choose another page from the menu <b>Help</b>. If none of them can"
    " be shown, the program is damaged: install it again.</p>");

void setLinkColours(QTextBrowser& browser) {
    QPalette palette = browser.palette();
    palette.setColor(QPalette::Link, link);
    palette.setColor(QPalette::LinkVisited, visitedLink);
    browser.setPalette(palette);
    // Pages take the colour of their links from the application's palette, unless they are told.
    browser.document()->setDefaultStyleSheet(
        QStringLiteral("a:link { color: %1 }").arg(link.name()));
}

// The address inside the program's resources, or an empty one if there is no such page.
QUrl resource(const std::optional<std::string>& file) {
    const QString path = QStringLiteral("/help/") + toQt(file.value_or(""));
    return QFileInfo(QLatin1Char(':') + path).isFile() ? QUrl(QStringLiteral("qrc:") + path)
                                                       : QUrl();
}

}  // namespace

webpage::webpage(Forms& forms, Program& program)
    : SkinnedForm(forms, {.caption = "Tessaro - Help", .title = "Help", .dragBy = DragBy::Plate}),
      program_(program),
      ui_(std::make_unique<Ui::webpageContent>()) {
    setUpContent(*ui_);
    setLinkColours(*ui_->WebBrowser1);
    ui_->WebBrowser1->document()->setDocumentMargin(pageMargin);
    loadResources();
}

webpage::~webpage() = default;

void webpage::Load() {
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
}

void webpage::navigate(const std::string& address) {
    const QUrl page = resource(helpFile(program_.file, address));
    if (page.isEmpty()) {
        ui_->WebBrowser1->setHtml(QString(errorPage).arg(toQt(address).toHtmlEscaped()));
    } else {
        ui_->WebBrowser1->setSource(page);
    }
}

void showHelpPage(Forms& forms, Program& program, const HelpPage& page) {
    auto& form = forms.get<webpage>();
    form.Title->setText(toQt(page.title));
    form.navigate(helpAddress(program.file, page));
    forms.showModal<webpage>();
}

}  // namespace tessaro
