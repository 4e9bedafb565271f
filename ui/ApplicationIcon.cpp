#include "ui/ApplicationIcon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

// Resources of a static library are left out unless they are asked for.
static void initializeIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace tambrelle {

QIcon applicationIcon() {
    initializeIcons();
    QSvgRenderer renderer(QStringLiteral(":/icons/org.tambrelle.Tambrelle.svg"));
    QIcon icon;
    for (const int side : {16, 32, 48, 128}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace tambrelle
