#pragma once

#include "ui/panel/PanelSnapshot.h"

#include <QWidget>

namespace tambrelle {

class CopyButton;
class SymbolButton;
class TextLabel;

/// The slogan and the four small buttons.
class FooterSection final : public QWidget {
    Q_OBJECT

public:
    explicit FooterSection(QWidget* parent = nullptr);

    void present(const FooterContent& content);
    void showCopied(bool copied);

signals:
    /// `test` is whether the Option key (Alt) was held.
    void chimeClicked(bool test);
    void copyRequested();
    void settingsRequested();
    void quitRequested();

private:
    TextLabel* slogan;
    SymbolButton* chime;
    CopyButton* copy;
};

} // namespace tambrelle
