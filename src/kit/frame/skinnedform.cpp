#include "kit/frame/skinnedform.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "kit/controls/wholetext.h"
#include "kit/forms/handler.h"
#include "kit/frame/drag.h"
#include "kit/frame/picturelabels.h"
#include "kit/frame/placement.h"
#include "kit/look/reader.h"
#include "kit/look/style.h"
#include "kit/look/text.h"

namespace tessaro {
namespace {

constexpr int border = 1;  // a line, so that the form stands out from any desktop
constexpr int sideWidth = 12;
constexpr int bottomHeight = 14;
constexpr int bandHeight = 32;
constexpr double plateShare = 0.6;  // of the form's width
constexpr int contentMargin = 6;
constexpr int lettersSeen = 24;  // of a title, however narrow the form is

template <class Label>
QLabel* makeLabel(QWidget* parent, const char* name) {
    auto* label = new Label(parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

QPushButton* makeButton(QWidget* parent, const char* name, const char* caption,
                        const std::string& task) {
    auto* button = new QPushButton(QLatin1String(caption), parent);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(toQt(task));
    button->setAutoDefault(false);
    // A thin stroke between two rows of pixels would be paler than its colour.
    QFont font = button->font();
    font.setBold(true);
    button->setFont(font);
    return button;
}

// The last control in tab order that lies in `container`, or the container.
QWidget* lastInTabOrder(QWidget* container) {
    QWidget* last = container;
    for (QWidget* widget = container->nextInFocusChain(); widget != container;
         widget = widget->nextInFocusChain())
        if (container->isAncestorOf(widget)) last = widget;
    return last;
}

bool takesTab(const QWidget& widget) {
    return widget.isEnabled() && widget.isVisible() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

SkinnedForm::SkinnedForm(Forms& forms, const FrameOptions& options)
    : FormWindow<QDialog>(forms), strut_(new QWidget(this)), area_(new ContentArea(this)) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setWindowTitle(toQt(options.caption));
    makeFrame(options);
    makeButtons(options);
    layOut();
    if (options.dragBy != DragBy::Nothing) addDragHandle(*timg);
    if (options.dragBy == DragBy::PlateAndTitle) addDragHandle(*Title);
    on(CommandX, &QPushButton::clicked, forms, [this] { closePressed(); });
}

void SkinnedForm::makeFrame(const FrameOptions& options) {
    timg = makeLabel<PlateLabel>(this, "timg");
    bimg = makeLabel<BarLabel>(this, "bimg");
    leftimg = makeLabel<BarLabel>(this, "leftimg");
    rightimg = makeLabel<BarLabel>(this, "rightimg");
    Title = makeLabel<TitleLabel>(this, "Title");
    Title->setTextFormat(Qt::PlainText);
    Title->setText(toQt(options.title));
    bimg->setFixedHeight(bottomHeight);
    leftimg->setFixedWidth(sideWidth);
    rightimg->setFixedWidth(sideWidth);
}

void SkinnedForm::makeButtons(const FrameOptions& options) {
    CommandX = makeButton(this, "CommandX", "X", "Close");
    CommandX->setToolTip(CommandX->accessibleName());
    if (!options.secondButton) return;
    if (options.secondButtonTask.empty()) {
        CommandQ = makeButton(this, "CommandQ", "_", "Minimise");
        CommandQ->setEnabled(false);
    } else {
        CommandQ = makeButton(this, "CommandQ", "?", options.secondButtonTask);
        CommandQ->setToolTip(CommandQ->accessibleName());
    }
}

void SkinnedForm::layOut() {
    auto* top = new QHBoxLayout;
    top->setContentsMargins(0, 0, 5, 0);
    top->setSpacing(3);
    top->addWidget(strut_, 1);
    if (CommandQ != nullptr) top->addWidget(CommandQ);
    top->addWidget(CommandX);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(leftimg);
    middle->addWidget(area_, 1);
    middle->addWidget(rightimg);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(border, border, border, border);
    all->setSpacing(0);
    all->addLayout(top);
    all->addLayout(middle, 1);
    all->addWidget(bimg);
}

void SkinnedForm::completeContent() {
    QWidget& content = *area_->widget();
    if (content.layout() != nullptr)
        content.layout()->setContentsMargins(contentMargin, contentMargin, contentMargin,
                                             contentMargin);
    dressFields(content);
    nameForReaders(content);
    showWholeTexts(content);
    QWidget* last = lastInTabOrder(&content);
    if (CommandQ != nullptr) {
        setTabOrder(last, CommandQ);
        last = CommandQ;
    }
    setTabOrder(last, CommandX);
    fitFrame();
    designed_ = content.size();
    refit(content);
}

void SkinnedForm::refit(QWidget& control) {
    control.updateGeometry();
    // Layouts that are not seen yet wait until they are before they tell those around them.
    for (QWidget* around = control.parentWidget(); around != area_; around = around->parentWidget())
        if (around->layout() != nullptr) around->layout()->activate();
    resize(designed_.expandedTo(area_->sizeHint()) + surroundings());
}

// What the frame adds to the content.
QSize SkinnedForm::surroundings() const {
    return {2 * (border + sideWidth), 2 * border + strut_->minimumHeight() + bottomHeight};
}

void SkinnedForm::setTitle(const QString& title) {
    Title->setText(title);
    Title->setToolTip(title);
    fitFrame();
}

void SkinnedForm::addDragHandle(QWidget& handle) {
    handle.installEventFilter(this);
}

bool SkinnedForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) DragForm(*this);
    return FormWindow<QDialog>::eventFilter(watched, event);
}

void SkinnedForm::closePressed() {
    forms().close(*this);
}

void SkinnedForm::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // The bar at the foot serves for the band as well, behind plate and buttons.
    const QPixmap bar = bimg->pixmap(Qt::ReturnByValue);
    if (!bar.isNull()) painter.drawPixmap(0, 0, width(), border + strut_->height(), bar);
    painter.setPen(palette().color(QPalette::Shadow));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void SkinnedForm::resizeEvent(QResizeEvent* event) {
    FormWindow<QDialog>::resizeEvent(event);
    placeTitle();
    // One that grows with its content does not grow off the screen.
    const QRect room = screen()->availableGeometry();
    if (isVisible() && room.contains(QRect(pos(), event->oldSize())))
        move(fittedInto(room, geometry()).topLeft());
}

void SkinnedForm::changeEvent(QEvent* event) {
    FormWindow<QDialog>::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) fitFrame();
}

void SkinnedForm::showEvent(QShowEvent* event) {
    FormWindow<QDialog>::showEvent(event);
    fitFrame();
    setGeometry(fittedInto(screen()->availableGeometry(), geometry()));
    if (focusWidget() == nullptr) focusFirstControl();
}

// Left alone, Qt would give the focus to the close button, which was made first.
void SkinnedForm::focusFirstControl() {
    QWidget* content = area_->widget();
    QWidget* widget = content->nextInFocusChain();
    while (widget != content && !(content->isAncestorOf(widget) && takesTab(*widget)))
        widget = widget->nextInFocusChain();
    if (widget != content) widget->setFocus();
}

// The band and its buttons grow with the font.
void SkinnedForm::fitFrame() {
    const int letter = fontMetrics().height();
    const int buttonSize = letter + 7;
    for (QPushButton* button : {CommandX, CommandQ})
        if (button != nullptr) button->setFixedSize(buttonSize, buttonSize);
    strut_->setFixedHeight(std::max(bandHeight, letter + 14));
    const int buttonsWidth = CommandQ != nullptr ? 2 * buttonSize + 10 : buttonSize + 7;
    const int wholeTitle = Title->fontMetrics().averageCharWidth() * lettersSeen;
    timg->setMinimumWidth(std::min(Title->sizeHint().width(), wholeTitle) + capsWidth());
    strut_->setMinimumWidth(timg->minimumWidth() + buttonsWidth);
    area_->setSurroundings(surroundings());
    placeTitle();
}

// Of the plate's two ends, which grow with its height.
int SkinnedForm::capsWidth() const {
    return 2 * PlateLabel::capWidth * strut_->minimumHeight() / PlateLabel::pictureHeight;
}

void SkinnedForm::placeTitle() {
    const int plateWidth = std::max(int(width() * plateShare), timg->minimumWidth());
    timg->setGeometry(timg->x(), border, plateWidth, strut_->minimumHeight());
    Title->resize(Title->sizeHint().boundedTo(timg->size() - QSize(capsWidth(), 0)));
    Title->move(Title->x(), border + (strut_->minimumHeight() - Title->height()) / 2);
    centreAcross(*this, *timg);
    centreAcross(*this, *Title);
}

}  // namespace tessaro
