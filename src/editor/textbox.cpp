#include "editor/textbox.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <utility>

namespace tessaro {

TextBox::TextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setLineWrapMode(NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(document(), &QTextDocument::contentsChange, this, &TextBox::tellChange);
}

void TextBox::showText(const std::u16string& text) {
    // Not fromStdU16String, which takes a U+FEFF at the start for a mark and drops it.
    const auto* units = reinterpret_cast<const QChar*>(text.data());
    setPlainText(QString::fromRawData(units, static_cast<qsizetype>(text.size())));
}

std::u16string TextBox::line(std::size_t number) const {
    return document()->findBlockByNumber(static_cast<int>(number)).text().toStdU16String();
}

void TextBox::select(std::size_t start, std::size_t length) {
    QTextCursor selection(document());
    selection.setPosition(static_cast<int>(start));
    selection.setPosition(static_cast<int>(start + length), QTextCursor::KeepAnchor);
    setTextCursor(selection);
    centerCursor();
}

void TextBox::tellChange(int position, int /*removed*/, int added) {
    const QTextDocument& text = *document();
    const QTextBlock end = text.findBlock(position + added);
    const int first = text.findBlock(position).blockNumber();
    const int last = end.isValid() ? end.blockNumber() : text.blockCount() - 1;
    const int now = last - first + 1;
    const int before = now - (text.blockCount() - std::exchange(lines_, text.blockCount()));
    Q_EMIT linesReplaced(first, before, now);
}

// Tab is typed, so it takes Ctrl to leave the box by it.
void TextBox::keyPressEvent(QKeyEvent* event) {
    const bool forward = event->key() == Qt::Key_Tab;
    const bool leaves = event->modifiers().testFlag(Qt::ControlModifier) &&
                        (forward || event->key() == Qt::Key_Backtab);
    if (!leaves || !QAbstractScrollArea::focusNextPrevChild(forward))
        QPlainTextEdit::keyPressEvent(event);
}

// Qt's own would make a blank of a no-break space.
QMimeData* TextBox::createMimeDataFromSelection() const {
    auto* data = new QMimeData;
    data->setText(
        textCursor().selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n')));
    return data;
}

}  // namespace tessaro
