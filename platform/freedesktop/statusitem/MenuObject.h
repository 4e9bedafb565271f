#pragma once

#include <QDBusVirtualObject>
#include <QString>

namespace tambrelle {

/// The item's menu on the bus: the line itself, the panel, the preferences, and quit.
class MenuObject final : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit MenuObject(QObject* parent = nullptr);

    /// The text of the first entry. A bar is not told of it; it asks when it opens the menu.
    void setLine(const QString& text);

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

signals:
    void panelRequested();
    void preferencesRequested();
    void quitRequested();

private:
    [[nodiscard]] QDBusMessage replyTo(const QDBusMessage& message);
    [[nodiscard]] QDBusMessage layout(const QDBusMessage& message);
    [[nodiscard]] QDBusMessage groupProperties(const QDBusMessage& message) const;
    [[nodiscard]] QDBusMessage entryProperty(const QDBusMessage& message) const;
    void choose(int id);

    QString line;
    QString shownLine; ///< As of the last layout that a bar has read.
    uint revision = 1;
};

} // namespace tambrelle
