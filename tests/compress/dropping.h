#pragma once

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <vector>

#include "kit/look/text.h"
#include "support/forms/formsfixture.h"

namespace tessaro::test {

/// What a file manager would let the program do with its files, and what it proposes.
struct Offer {
    Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    Qt::DropAction proposed = Qt::MoveAction;
};

/// Drags `data` onto the middle of a list and drops it there. Gives the action that the list took,
/// or IgnoreAction if it refused.
inline Qt::DropAction dragAndDrop(QAbstractScrollArea& list, const QMimeData& data,
                                  const Offer& offer = {}) {
    const QPoint middle = list.viewport()->rect().center();
    const Qt::DropActions offered = offer.actions;
    QDragEnterEvent enter(middle, offered, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list.viewport(), &enter);
    if (!enter.isAccepted()) return Qt::IgnoreAction;
    QDropEvent drop(middle, offered, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(offer.proposed);
    QCoreApplication::sendEvent(list.viewport(), &drop);
    return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
}

/// Drops a list of addresses as it travels between programs, and lets the form take it.
inline Qt::DropAction dropAddresses(QAbstractScrollArea& list, const QByteArray& addresses) {
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), addresses);
    const Qt::DropAction action = dragAndDrop(list, data);
    serveEvents();
    return action;
}

inline Qt::DropAction dropFiles(QAbstractScrollArea& list, const std::vector<HostPath>& files) {
    QByteArray addresses;
    for (const HostPath& file : files)
        addresses +=
            QUrl::fromLocalFile(QString::fromStdString(file.string())).toEncoded() + "\r\n";
    return dropAddresses(list, addresses);
}

}  // namespace tessaro::test
