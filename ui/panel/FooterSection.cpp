#include "ui/panel/FooterSection.h"

#include "ui/Spacing.h"
#include "ui/SymbolButton.h"
#include "ui/TextLabel.h"
#include "ui/panel/CopyButton.h"
#include "ui/panel/PanelMetrics.h"

#include <QGuiApplication>
#include <QHBoxLayout>

namespace tambrelle {

FooterSection::FooterSection(QWidget* parent)
    : QWidget(parent),
      slogan(new TextLabel(TypeScale::slogan, Ink::tertiary, TextFit::elided())),
      chime(new SymbolButton(QStringLiteral("speaker.slash"), TypeScale::caption, Ink::secondary)),
      copy(new CopyButton) {
    chime->setAccessibleName(QStringLiteral("Toggle chime"));
    chime->setToolTip(QStringLiteral("Click to toggle • Option-click to test chime"));
    auto* settings = new SymbolButton(QStringLiteral("gearshape"), TypeScale::caption, Ink::secondary);
    settings->setAccessibleName(QStringLiteral("Preferences"));
    settings->setToolTip(QStringLiteral("Preferences"));
    auto* quit = new SymbolButton(QStringLiteral("xmark.circle"), TypeScale::caption, Ink::secondary);
    quit->setAccessibleName(QStringLiteral("Quit"));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Spacing::standard, PanelMetrics::footerTopAndBottom, Spacing::standard,
                            PanelMetrics::footerTopAndBottom);
    row->setSpacing(Spacing::regular);
    row->addWidget(slogan, 1);
    row->addWidget(chime);
    row->addWidget(copy);
    row->addWidget(settings);
    row->addWidget(quit);

    connect(chime, &SymbolButton::clicked, this,
            [this] { emit chimeClicked(QGuiApplication::keyboardModifiers().testFlag(Qt::AltModifier)); });
    connect(copy, &CopyButton::clicked, this, &FooterSection::copyRequested);
    connect(settings, &SymbolButton::clicked, this, &FooterSection::settingsRequested);
    connect(quit, &SymbolButton::clicked, this, &FooterSection::quitRequested);
}

void FooterSection::present(const FooterContent& content) {
    slogan->setText(content.slogan);
    chime->setSymbol(content.soundEnabled ? QStringLiteral("speaker.wave.2")
                                          : QStringLiteral("speaker.slash"));
    chime->setInk(content.soundEnabled ? Ink::blue : Ink::secondary);
    chime->setAccessibleDescription(content.soundEnabled ? QStringLiteral("Chimes are on")
                                                         : QStringLiteral("Chimes are off"));
}

void FooterSection::showCopied(bool copied) {
    copy->showCopied(copied);
}

} // namespace tambrelle
