#pragma once

#include <QHeaderView>
#include <initializer_list>

#include "kit/controls/listview.h"

namespace tessaro {

/// Sets the widths of a list's columns, in letters of its font. A width of 0 takes what is left;
/// its texts are cut in the middle, since paths tell most at their ends.
inline void setColumnWidths(ListView& list, std::initializer_list<int> letters) {
    list.setTextElideMode(Qt::ElideMiddle);
    list.header()->setStretchLastSection(false);
    int column = 0;
    for (const int count : letters) {
        if (count == 0) list.header()->setSectionResizeMode(column, QHeaderView::Stretch);
        list.header()->resizeSection(column++, count * list.fontMetrics().averageCharWidth());
    }
}

}  // namespace tessaro
