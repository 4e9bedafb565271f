#pragma once

#include "ui/SymbolButton.h"

#include <QPixmap>
#include <QVariantAnimation>

namespace tambrelle {

/// The copy button, which says for a moment that the copy has been made.
class CopyButton final : public SymbolButton {
    Q_OBJECT

public:
    explicit CopyButton(QWidget* parent = nullptr);

    /// The new symbol and words take their place at once and fade in, while the old ones fade out.
    void showCopied(bool copied);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QPixmap look();

    QPixmap leaving; ///< what it looked like before, as long as that is seen
    QVariantAnimation fade;
};

} // namespace tambrelle
