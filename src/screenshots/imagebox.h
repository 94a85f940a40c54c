#pragma once

#include <QLabel>

namespace tessaro {

/// A picture control. It takes on the size of its picture, one pixel of the picture to one of the
/// screen; or it keeps its size and stretches the picture, without regard to its proportions.
class ImageBox : public QLabel {
    Q_OBJECT
  public:
    explicit ImageBox(QWidget* parent) : QLabel(parent) {}

    void showPicture(const QPixmap& picture);
    void setStretch(bool stretch);

  Q_SIGNALS:
    void clicked();
    void rightPressed(const QPoint& place);  ///< on the screen

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void takeOnSize();

    bool stretch_ = false;
};

}  // namespace tessaro
