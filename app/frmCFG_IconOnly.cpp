#include "app/frmCFG_IconOnly.h"

#include "platform/widgets/Pictures.h"

#include <QGuiApplication>

frmCFG_IconOnly::frmCFG_IconOnly() {
    setObjectName(QStringLiteral("frmCFG_IconOnly"));
    // Larger ones would cost more of the start than all texts of the menu; only a sharp screen shows the difference.
    QStringList sizes{QStringLiteral("icon-16"), QStringLiteral("icon-32"), QStringLiteral("icon-48")};
    if (qGuiApp->devicePixelRatio() > 1) {
        sizes += {QStringLiteral("icon"), QStringLiteral("icon@2x")};
    }
    setWindowIcon(PictureOfSizes(sizes));
}
