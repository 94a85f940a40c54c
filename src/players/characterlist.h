#pragma once

#include <QListWidget>

namespace tessaro {

/// A list of characters with their codes, see `chartRows`. A screen reader is told in words what
/// shows as nothing.
class CharacterList : public QListWidget {
    Q_OBJECT
  public:
    explicit CharacterList(QWidget* parent = nullptr);

    /// One row for each text; the last character of a text is the row's.
    void fill(const std::vector<std::string>& rows);
    /// The character of the row that was picked last; an empty text if there is none.
    QString picked() const;

  Q_SIGNALS:
    /// A mouse button went down in the list, on a row (which is picked by now) or beside the rows.
    void mousePressed();
    /// The user double-clicked a row, or pressed Enter on it.
    void chosen();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tessaro
