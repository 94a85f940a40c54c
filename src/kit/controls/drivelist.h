#pragma once

#include <QComboBox>
#include <string>
#include <string_view>

#include "platform/files/files.h"

namespace tessaro {

/// The drives that are there, as "c:", and which of them is chosen.
class DriveList : public QComboBox {
    Q_OBJECT
  public:
    explicit DriveList(QWidget* parent = nullptr);

    /// Fills the list, with the current drive chosen. To be called before anything else.
    void use(Files& files);

    /// Such as "c:".
    std::string drive() const;
    /// Chooses the drive of the text's first letter. Raises 68 if it is not there.
    void setDrive(std::string_view drive);

  Q_SIGNALS:
    /// Another drive was chosen, by the user or by `setDrive`.
    void changed();

  protected:
    /// Looks like a text box, so that it shows a skin's ground and not a paler one.
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace tessaro
