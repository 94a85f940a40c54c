#pragma once

#include <QRadioButton>

namespace tessaro {

/// An option with a long caption, which takes two lines where one would be too wide.
class WrappingOption : public QRadioButton {
    Q_OBJECT
  public:
    explicit WrappingOption(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QString twoLines() const;
    int besideText() const;

    bool wrapped_ = false;
};

}  // namespace tessaro
