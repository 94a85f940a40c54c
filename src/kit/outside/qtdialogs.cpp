#include "kit/outside/qtdialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QSpacerItem>
#include <algorithm>

#include "kit/frame/placement.h"
#include "kit/look/text.h"
#include "kit/outside/folderbox.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

// Wide enough for most names; Qt makes the box as wide as its prompt.
constexpr int inputLetters = 60;

// What a set of buttons is made of. Enter presses the first button, Esc the last resort.
struct ButtonSet {
    QMessageBox::StandardButtons all;
    QMessageBox::StandardButton first;
    QMessageBox::StandardButton escape;
};

ButtonSet buttonSet(Buttons buttons) {
    using Box = QMessageBox;
    switch (buttons) {
        case Buttons::OkCancel:
            return {Box::Ok | Box::Cancel, Box::Ok, Box::Cancel};
        case Buttons::YesNo:
            return {Box::Yes | Box::No, Box::Yes, Box::No};
        case Buttons::YesNoCancel:
            return {Box::Yes | Box::No | Box::Cancel, Box::Yes, Box::Cancel};
        case Buttons::Ok:
            break;
    }
    return {Box::Ok, Box::Ok, Box::Ok};
}

QMessageBox::Icon boxIcon(Icon icon) {
    switch (icon) {
        case Icon::Stop:
            return QMessageBox::Critical;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

Answer answerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

// Qt's box takes the width of its lines, and fixes that when it is shown.
void widenToCaption(QMessageBox& box) {
    auto* lines = static_cast<QGridLayout*>(box.layout());
    lines->addItem(new QSpacerItem(captionWidth(box), 0), lines->rowCount(), 0, 1, -1);
}

// The window that the question belongs to.
QWidget* owner() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

void showPlainText(const QWidget& dialog) {
    for (QLabel* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
}

// `filter` holds words, a bar and a pattern. The words are shown as they are; Qt by itself would
// read them for a pattern, and take "*.*" for names with a dot only.
void setFilter(QFileDialog& box, const std::string& filter) {
    const QStringList parts = toQt(filter).split(QLatin1Char('|'));
    const QString pattern =
        parts.value(1) == QStringLiteral("*.*") ? QStringLiteral("*") : parts.value(1);
    box.setNameFilter(QStringLiteral("files (%1)").arg(pattern));
    if (auto* kinds = box.findChild<QComboBox*>(QStringLiteral("fileTypeCombo")))
        kinds->setItemText(0, parts.value(0));
}

}  // namespace

Answer QtDialogs::message(const Message& message) {
    QMessageBox box(owner());
    const ButtonSet buttons = buttonSet(message.buttons);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(toQt(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(message.text));
    box.setIcon(boxIcon(message.icon));
    box.setStandardButtons(buttons.all);
    box.setDefaultButton(buttons.first);
    box.setEscapeButton(buttons.escape);
    widenToCaption(box);
    const int button = box.exec();
    end_.throwIfEnded();
    return answerOf(button);
}

std::string QtDialogs::input(const std::string& prompt, const std::string& title,
                             const std::string& preset) {
    QInputDialog box(owner());
    box.setObjectName(QStringLiteral("inputBox"));
    box.setWindowTitle(toQt(title));
    box.setLabelText(toQt(prompt));
    box.setTextValue(toQt(preset));
    showPlainText(box);
    const int width = inputLetters * box.fontMetrics().averageCharWidth();
    box.resize(std::max(width, captionWidth(box)), box.sizeHint().height());
    const bool accepted = box.exec() == QDialog::Accepted;
    end_.throwIfEnded();
    return accepted ? lineFromQt(box.textValue()) : std::string();
}

std::string QtDialogs::pickFolder(const FolderPicker& picker) {
    FolderBox box(owner(), files_, picker);
    const bool accepted = box.exec() == QDialog::Accepted;
    end_.throwIfEnded();
    return accepted ? box.folder() : std::string();
}

std::string QtDialogs::pickFileToOpen(const FilePicker& picker) {
    QFileDialog box(owner());
    return pickFile(box, picker);
}

std::string QtDialogs::pickFileToSave(const FilePicker& picker) {
    QFileDialog box(owner());
    box.setAcceptMode(QFileDialog::AcceptSave);
    return pickFile(box, picker);
}

std::string QtDialogs::pickFile(QFileDialog& box, const FilePicker& picker) {
    box.setObjectName(QStringLiteral("filePicker"));
    box.setOption(QFileDialog::DontUseNativeDialog);
    box.setOption(QFileDialog::DontConfirmOverwrite);
    box.setFileMode(QFileDialog::AnyFile);
    if (!picker.title.empty()) box.setWindowTitle(toQt(picker.title));
    setFilter(box, picker.filter);
    attempt([&] {
        if (const auto folder = paths_.find(picker.folder)) box.setDirectory(hostPathToQt(*folder));
    });
    box.selectFile(toQt(picker.name));
    return picked(box);
}

std::string QtDialogs::picked(QFileDialog& box) {
    const bool accepted = box.exec() == QDialog::Accepted;
    end_.throwIfEnded();
    if (!accepted || box.selectedFiles().isEmpty()) return {};
    return paths_.toGame(hostPathFromQt(box.selectedFiles().constFirst()));
}

}  // namespace tessaro
