#include "app/frmCFG_IconOnly.h"

#include "platform/widgets/Pictures.h"

frmCFG_IconOnly::frmCFG_IconOnly() {
    setObjectName(QStringLiteral("frmCFG_IconOnly"));
    QIcon icon = Picture(QStringLiteral("icon"));
    for (const int size : {16, 32, 48}) { // a larger one costs more of the start than the whole menu's texts do
        icon.addFile(QStringLiteral(":/pictures/icon-%1.png").arg(size), QSize(size, size));
    }
    setWindowIcon(icon);
}
