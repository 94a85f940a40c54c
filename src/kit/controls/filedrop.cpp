#include "kit/controls/filedrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QSysInfo>
#include <QUrl>
#include <algorithm>

#include "kit/forms/handler.h"
#include "kit/look/text.h"

namespace tessaro {
namespace {

bool holdsFiles(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

// X11's drags name the machine in the address, and so do some file managers. Qt would make the
// name of a share from it.
QUrl withoutThisMachine(QUrl url) {
    for (const QString& machine : {QStringLiteral("localhost"), QSysInfo::machineHostName()})
        if (url.host().compare(machine, Qt::CaseInsensitive) == 0) url.setHost({});
    return url;
}

// Old names may hold bytes that are no UTF-8, which only the address itself still has.
HostPath hostPathOf(const QUrl& url) {
    const QString local = withoutThisMachine(url).toLocalFile();
    if (!local.contains(QChar::ReplacementCharacter)) return hostPathFromQt(local);
    const QByteArray bytes =
        QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return HostPath(std::u8string(bytes.begin(), bytes.end()));
}

}  // namespace

FileDrop::FileDrop(Forms& forms, const Paths& paths, QAbstractScrollArea& list, Handler handler)
    : QObject(&list), forms_(forms), paths_(paths), handler_(std::move(handler)) {
    list.setAcceptDrops(true);
    list.viewport()->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
            answer(static_cast<QDropEvent&>(*event));
            return true;
        case QEvent::Drop: {
            auto& drop = static_cast<QDropEvent&>(*event);
            answer(drop);
            if (drop.isAccepted()) take(*drop.mimeData());
            return true;
        }
        default:
            return false;
    }
}

// Whoever offers nothing but to move would delete the files afterwards. The effect is left as it
// came, but a move becomes the copy that it may be as well.
void FileDrop::answer(QDropEvent& event) const {
    const bool onlyMoves = (event.possibleActions() & (Qt::CopyAction | Qt::LinkAction)) == 0;
    const bool accepted = holdsFiles(*event.mimeData()) && !onlyMoves;
    if (!accepted) {
        event.setDropAction(Qt::IgnoreAction);
    } else if (event.dropAction() == Qt::MoveAction) {
        event.setDropAction(event.possibleActions() & Qt::CopyAction ? Qt::CopyAction
                                                                     : Qt::LinkAction);
    }
    event.setAccepted(accepted);
}

void FileDrop::take(const QMimeData& data) {
    std::vector<std::string> dropped;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile()) dropped.push_back(paths_.toGame(hostPathOf(url)));
    QMetaObject::invokeMethod(
        this, [this, dropped] { guarded(forms_, [&] { handler_(dropped); }); },
        Qt::QueuedConnection);
}

}  // namespace tessaro
