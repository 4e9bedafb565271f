#pragma once

#include "ui/Ink.h"
#include "ui/Symbol.h"
#include "ui/TypeScale.h"

#include <QAbstractButton>
#include <QPixmap>

namespace tambrelle {

/// A plain button: a symbol, with a text after it or without, in one ink. Left and right arrow keys are left
/// to the panel.
class SymbolButton : public QAbstractButton {
    Q_OBJECT

public:
    SymbolButton(const QString& symbolName, const TypeStyle& style, Ink ink, QWidget* parent = nullptr);

    void setSymbol(const QString& name);
    void setInk(Ink ink);

    [[nodiscard]] const QString& symbolName() const { return symbol.name; }
    [[nodiscard]] Ink ink() const { return buttonInk; }
    [[nodiscard]] const TypeStyle& style() const { return typeStyle; }

    /// How much of the button shows, 0 to 1; for a change that fades.
    void setOpacity(double opacity);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] const QPixmap& pixmap();

    TypeStyle typeStyle;
    Symbol symbol;
    Ink buttonInk;
    double opacity = 1;
    QPixmap cached;
    QColor cachedColor;
};

} // namespace tambrelle
