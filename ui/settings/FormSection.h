#pragma once

#include <QWidget>

#include <vector>

class QVBoxLayout;

namespace tambrelle {

class ToggleRow;

/// A titled group of a form: its rows in one rounded box, with a line between two rows that show.
class FormSection final : public QWidget {
    Q_OBJECT

public:
    explicit FormSection(const QString& title, QWidget* parent = nullptr);

    /// Takes the row.
    void addRow(ToggleRow* row);
    /// Adds `control` on the trailing side of its label, and gives it the label as its accessible name. The
    /// row can be shown and hidden.
    QWidget* addRow(const QString& label, QWidget* control);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addPadded(QWidget* row, int ownPadding);
    [[nodiscard]] QColor ground() const;
    [[nodiscard]] QColor hairline() const;

    QWidget* box;
    QVBoxLayout* rows;
    std::vector<QWidget*> rowWidgets;
};

} // namespace tambrelle
