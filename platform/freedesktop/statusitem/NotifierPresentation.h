#pragma once

#include "platform/freedesktop/statusitem/DropCount.h"
#include "platform/freedesktop/statusitem/NotifierObject.h"
#include "platform/freedesktop/statusitem/Presentation.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QString>

#include <cstdint>

namespace tambrelle {

class MenuObject;

/// How a bar that takes items over the bus is best served.
struct NotifierAppearance {
    NotifierStyle style;
    bool wideLine = false;     ///< The line itself as a wide picture in place of the square icon.
    bool iconFromFile = false; ///< The square icon as a file: the bar takes no pixmaps.
};

/// The line as a status notifier item on the session bus, registered with the bar's watcher.
class NotifierPresentation final : public Presentation {
    Q_OBJECT

public:
    NotifierPresentation(const QDBusConnection& bus, const NotifierAppearance& appearance,
                         QObject* parent = nullptr);
    ~NotifierPresentation() override;

    void present(const StatusItemContent& content) override;

private:
    void noteActivation(QPoint position);
    void claimName();
    void registerWithWatcher();

private slots:
    void noteUnregistered(const QString& item, const QDBusMessage& signal);

private:
    void sendSignal(const QString& name, const QVariantList& arguments);

    QDBusConnection bus;
    NotifierAppearance appearance;
    QString serviceName;
    QString watcher; ///< The bar's own name on the bus, once it has answered.
    NotifierObject* item;
    MenuObject* menu;
    bool announced = false;
    DropCount drops;
    std::int64_t shownDay = 0;
    QElapsedTimer age;
    QElapsedTimer sinceActivated;
};

} // namespace tambrelle
