#include "players/characterlist.h"

#include <QKeyEvent>
#include <QStyledItemDelegate>

#include "kit/look/text.h"

namespace tessaro {
namespace {

// What a screen reader says for a character that has no shape; empty for one that has.
QString nameOf(QChar character) {
    if (character.category() == QChar::Other_Control) return QStringLiteral("control character");
    if (character.category() == QChar::Other_Format) return QStringLiteral("invisible character");
    if (character.isSpace()) return QStringLiteral("blank");
    return {};
}

// Draws a text as it is: left to itself, a view breaks the line at a line feed.
class OneLineDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale&) const override {
        return value.toString();
    }
};

}  // namespace

CharacterList::CharacterList(QWidget* parent) : QListWidget(parent) {
    setUniformItemSizes(true);
    setItemDelegate(new OneLineDelegate(this));
    connect(this, &QListWidget::itemDoubleClicked, this, &CharacterList::chosen);
}

void CharacterList::fill(const std::vector<std::string>& rows) {
    for (const std::string& row : rows) {
        const QString text = toQt(row);
        auto* item = new QListWidgetItem(text, this);
        const QString name = nameOf(text.back());
        if (!name.isEmpty()) item->setData(Qt::AccessibleTextRole, text.chopped(1) + name);
    }
}

QString CharacterList::picked() const {
    return currentItem() == nullptr ? QString() : currentItem()->text().right(1);
}

void CharacterList::mousePressEvent(QMouseEvent* event) {
    QListWidget::mousePressEvent(event);  // picks the row
    Q_EMIT mousePressed();
}

void CharacterList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || currentItem() == nullptr) return QListWidget::keyPressEvent(event);
    Q_EMIT chosen();
}

}  // namespace tessaro
