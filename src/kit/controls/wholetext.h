#pragma once

#include <QLineEdit>
#include <QWidget>

namespace tessaro {

/// Lets every text box inside `form` show its text in its tooltip while it has no room for all of
/// it. The box's own tooltip follows.
void showWholeTexts(QWidget& form);

/// The text that such a box cuts, or an empty one if it shows all of it.
QString cutText(const QLineEdit& box);

}  // namespace tessaro
