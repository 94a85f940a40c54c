#pragma once

#include <QLabel>

namespace tessaro {

/// A picture for the eye alone: screen readers pass it by.
class PictureLabel : public QLabel {
    Q_OBJECT
  public:
    explicit PictureLabel(QWidget* parent);
};

/// A bar of a window's frame: its picture is stretched along it, whatever the size.
class BarLabel : public PictureLabel {
    Q_OBJECT
  public:
    explicit BarLabel(QWidget* parent) : PictureLabel(parent) { setScaledContents(true); }
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSizeHint() const override { return minimumSize(); }
};

/// The plate behind a title: the picture's two end caps keep their shape, its middle is stretched.
class PlateLabel : public PictureLabel {
    Q_OBJECT
  public:
    /// Width of an end cap in a picture 32 pixels high.
    static constexpr int capWidth = 24;
    static constexpr int pictureHeight = 32;

    explicit PlateLabel(QWidget* parent) : PictureLabel(parent) {}

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A title on a plate: shows as much of its text as there is room for.
class TitleLabel : public QLabel {
    Q_OBJECT
  public:
    explicit TitleLabel(QWidget* parent) : QLabel(parent) {}

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tessaro
