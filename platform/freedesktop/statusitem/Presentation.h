#pragma once

#include "platform/StatusItem.h"

#include <QObject>
#include <QPoint>

namespace tambrelle {

/// One way of getting the line into a bar. It shows from its first content until it is destroyed.
class Presentation : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows `content`; called only with content that differs from what is shown.
    virtual void present(const StatusItemContent& content) = 0;

signals:
    /// As StatusItem has them.
    void activated(QPoint position);
    void preferencesRequested();
    void quitRequested();
    /// The bar does not show the line this way, or shows it no longer.
    void refused();
};

} // namespace tambrelle
