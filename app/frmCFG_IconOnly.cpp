#include "app/frmCFG_IconOnly.h"

#include "platform/widgets/Pictures.h"

frmCFG_IconOnly::frmCFG_IconOnly() {
    setObjectName(QStringLiteral("frmCFG_IconOnly"));
    // A larger one would cost more of the start than all texts of the menu.
    setWindowIcon(PictureOfSizes(
        {QStringLiteral("icon-16"), QStringLiteral("icon-32"), QStringLiteral("icon-48"), QStringLiteral("icon")}));
}
