#pragma once

#include "ui/SymbolButton.h"

#include <QVariantAnimation>

namespace tambrelle {

/// The copy button, which says for a moment that the copy has been made.
class CopyButton final : public SymbolButton {
    Q_OBJECT

public:
    explicit CopyButton(QWidget* parent = nullptr);

    /// The new symbol and words take their place at once and fade in.
    void showCopied(bool copied);

private:
    QVariantAnimation fade;
};

} // namespace tambrelle
