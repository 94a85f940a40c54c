#pragma once

#include <QPlainTextEdit>
#include <string>

namespace tessaro {

/// The editor's text box: long lines are not wrapped, and every character stays what it is when it
/// is copied. Positions count UTF-16 units, a line end as one.
class TextBox : public QPlainTextEdit {
    Q_OBJECT
  public:
    explicit TextBox(QWidget* parent = nullptr);

    /// Shows a text; what was done to the one before can no longer be undone.
    void showText(const std::u16string& text);
    bool isEmpty() const { return document()->isEmpty(); }
    /// A line by its number from 0, without its end.
    std::u16string line(std::size_t number) const;
    /// Selects a part of the text and brings it to the middle of the box.
    void select(std::size_t start, std::size_t length);

  Q_SIGNALS:
    /// After each change: `removed` lines from `first` on have become `added` lines.
    void linesReplaced(int first, int removed, int added);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

  private:
    void tellChange(int position, int removed, int added);

    int lines_ = 1;
};

}  // namespace tessaro
