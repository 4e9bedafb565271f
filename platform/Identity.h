#pragma once

#include <QString>

/// What the desktop knows the application by.
namespace tambrelle::Identity {

/// The one reverse-DNS name: of the application on the bus, and of its desktop file, icon and autostart
/// entry.
inline const QString applicationId = QStringLiteral("org.tambrelle.Tambrelle");

} // namespace tambrelle::Identity
