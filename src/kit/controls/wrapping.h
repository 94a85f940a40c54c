#pragma once

#include <QLabel>
#include <QRadioButton>
#include <utility>

namespace tessaro {

/// A text broken in two at the blank nearest to its middle.
QString twoLines(const QString& text);

/// A control with a long text of one line, which takes two where one would be too wide. Unlike one
/// that breaks its lines anywhere, it lets what stands around it shrink: Qt's layouts give the
/// preferred height to all that stands in one box with such a control.
template <class Control>
class Wrapping : public Control {
  public:
    explicit Wrapping(QWidget* parent) : Control(parent) {
        Control::setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override {
        const QSize oneLine = Control::sizeHint();
        return {oneLine.width(), oneLine.height() + (wrapped_ ? this->fontMetrics().height() : 0)};
    }
    QSize minimumSizeHint() const override {
        return {textWidth(twoLines(Control::text())) + besideText(), sizeHint().height()};
    }

  protected:
    /// The text as it is shown.
    QString shownText() const { return wrapped_ ? twoLines(Control::text()) : Control::text(); }
    void resizeEvent(QResizeEvent* event) override {
        Control::resizeEvent(event);
        const bool tooWide = Control::width() < Control::sizeHint().width();
        if (std::exchange(wrapped_, tooWide) != tooWide) Control::updateGeometry();
    }

  private:
    int textWidth(const QString& text) const {
        return this->fontMetrics().size(Qt::TextShowMnemonic, text).width();
    }
    int besideText() const { return Control::sizeHint().width() - textWidth(Control::text()); }

    bool wrapped_ = false;
};

class WrappingOption : public Wrapping<QRadioButton> {
    Q_OBJECT
  public:
    explicit WrappingOption(QWidget* parent = nullptr) : Wrapping(parent) {}

  protected:
    void initStyleOption(QStyleOptionButton* option) const override;
};

/// Of plain text.
class WrappingLabel : public Wrapping<QLabel> {
    Q_OBJECT
  public:
    explicit WrappingLabel(QWidget* parent = nullptr) : Wrapping(parent) {}

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tessaro
