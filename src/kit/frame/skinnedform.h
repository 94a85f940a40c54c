#pragma once

#include <QLabel>
#include <QPushButton>
#include <string>

#include "kit/forms/form.h"
#include "kit/forms/forms.h"
#include "kit/frame/contentarea.h"

namespace tessaro {

/// What of a form's frame moves the form.
enum class DragBy { PlateAndTitle, Plate, Nothing };

/// How a form's frame differs from that of the others.
struct FrameOptions {
    std::string caption;        ///< the window's name, seen in the task bar
    std::string title;          ///< text of `Title`
    bool secondButton = false;  ///< `CommandQ`
    DragBy dragBy = DragBy::PlateAndTitle;
    /// What `CommandQ` is there for, such as "Help"; it bears a "?" then. Without, it is a minimise
    /// button that cannot be pressed.
    std::string secondButtonTask = {};
};

/// A borderless tool form. It draws its own frame around the content, which the form's Designer
/// file defines:
///
///     +--------------------------------------+
///     |        < timg   Title   >    [Q] [X] |
///     | leftimg |     content     | rightimg |
///     |                 bimg                 |
///     +--------------------------------------+
///
/// The controls bear these names (and `CommandQ`, `CommandX`), by which skins find them.
class SkinnedForm : public FormWindow<QDialog> {
    Q_OBJECT
  public:
    SkinnedForm(Forms& forms, const FrameOptions& options);

    /// Fills the form. To be called once, before Load.
    template <class Ui>
    void setUpContent(Ui& ui) {
        ui.setupUi(area_->widget());
        completeContent();
    }

    QLabel* timg;
    QLabel* bimg;
    QLabel* leftimg;
    QLabel* rightimg;
    QLabel* Title;
    QPushButton* CommandX;
    QPushButton* CommandQ = nullptr;  ///< only if asked for

    /// Changes the text of `Title`.
    void setTitle(const QString& title);

    /// Lets the form be moved by one more control.
    void addDragHandle(QWidget& handle);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    /// Fits the form, before it is shown, to a control of its content that has come to want another
    /// size than it had.
    void refit(QWidget& control);

    /// What a click on `CommandX` does: closes the form.
    virtual void closePressed();

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void makeFrame(const FrameOptions& options);
    void makeButtons(const FrameOptions& options);
    void layOut();
    void completeContent();
    void fitFrame();
    QSize surroundings() const;
    int capsWidth() const;
    void placeTitle();
    void focusFirstControl();

    QWidget* strut_;  // keeps room for the plate, beside the buttons
    ContentArea* area_;
    QSize designed_;  // of the content
};

}  // namespace tessaro
