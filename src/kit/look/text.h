#pragma once

#include <QString>
#include <QTextDocument>
#include <string>
#include <string_view>

#include "platform/files/host.h"

namespace tessaro {

/// The program's texts are UTF-8, Qt's are not; these are the two ways across.
inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQt(const QString& text) {
    return text.toStdString();
}

/// What was typed into a box of one line. Qt's boxes keep the line breaks of what is pasted; the
/// text ends at the first, or it would be two lines in a file of lines.
inline std::string lineFromQt(const QString& text) {
    const std::string all = fromQt(text);
    return all.substr(0, all.find_first_of("\r\n"));
}

/// A text for a tooltip, which would take one with tags in it for markup.
inline QString toolTipText(const QString& text) {
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

inline QString hostPathToQt(const HostPath& path) {
    const std::u8string bytes = path.u8string();
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

inline HostPath hostPathFromQt(const QString& path) {
    const std::string bytes = fromQt(path);
    return HostPath(std::u8string(bytes.begin(), bytes.end()));
}

}  // namespace tessaro
