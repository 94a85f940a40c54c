#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <string>
#include <vector>

#include "kit/forms/forms.h"
#include "platform/files/paths.h"

namespace tessaro {

/// Lets files be dropped on a list, as file managers do it. Anything else is refused.
class FileDrop : public QObject {
  public:
    /// Gets the paths of one drop, in the game's form, once the drag is over: while it lasts the
    /// file manager waits for us.
    using Handler = std::function<void(const std::vector<std::string>&)>;

    FileDrop(Forms& forms, const Paths& paths, QAbstractScrollArea& list, Handler handler);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void answer(QDropEvent& event) const;
    void take(const QMimeData& data);

    Forms& forms_;
    const Paths& paths_;
    Handler handler_;
};

}  // namespace tessaro
