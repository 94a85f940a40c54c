#pragma once

#include <QPixmap>
#include <QString>

namespace tessaro {

/// A picture of the program's resources by its file, such as ":/pictures/topimg.png"; its "@2x"
/// twin on a finer screen, if there is one.
///
/// Read as the PNG that it is: left to find out for itself, Qt loads every picture library of the
/// system first, which the start of the program would pay for.
QPixmap programPicture(const QString& file);

/// Makes the program's resources known to Qt. A static library has to ask for its own; whoever
/// reads one past `programPicture` calls this first, as often as it likes.
void loadResources();

}  // namespace tessaro
