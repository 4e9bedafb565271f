#include "ui/TextAccessible.h"

#include "ui/TextLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace tambrelle {

namespace {

class TextAccessible final : public QAccessibleWidget {
public:
    explicit TextAccessible(TextLabel* label) : QAccessibleWidget(label, QAccessible::StaticText) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return static_cast<TextLabel*>(widget())->text();
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* textInterface(const QString&, QObject* object) {
    auto* label = qobject_cast<TextLabel*>(object);
    return label ? new TextAccessible(label) : nullptr;
}

} // namespace

void installTextAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(&textInterface);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace tambrelle
