#pragma once

#include <QScrollArea>

namespace tessaro {

/// Holds a form's content, as large as it wants to be where the screen has room for it. Where it
/// has not, the content shrinks as far as it can and scrolls from there on, after the focus.
class ContentArea : public QScrollArea {
    Q_OBJECT
  public:
    explicit ContentArea(QWidget* parent);

    /// To be told what of the form surrounds the area.
    void setSurroundings(const QSize& size);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return widget()->hasHeightForWidth(); }
    int heightForWidth(int width) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    // The scroll area's own would show the control once more, in its way.
    bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }

  private:
    void scrollTo(QWidget& control);
    QSize room() const;
    QSize fitted(const QSize& wanted) const;

    QSize surroundings_;
};

/// How large an area has to be that shows something of a size in some room; what is cut one way
/// takes the width of a scroll bar the other way.
QSize scrolledSize(QSize wanted, const QSize& room, int scrollBar);

}  // namespace tessaro
