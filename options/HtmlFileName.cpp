#include "options/HtmlFileName.h"

QStringList HtmlOrderTexts() {
    return {
        QStringLiteral("Student# + Sep1 + Course"),
        QStringLiteral("Course + Sep1 + Student#"),
        QStringLiteral("School + Sep1 + Student# + Sep2 + Course"),
        QStringLiteral("School + Sep1 + Course + Sep2 + Student#"),
        QStringLiteral("Student# + Sep1 + Course + Sep2 + School"),
        QStringLiteral("Course + Sep1 + Student# + Sep2 + School"),
        QStringLiteral("Student# + Sep1 + School + Sep2 + Course"),
        QStringLiteral("Course + Sep1 + School + Sep2 + Student#"),
    };
}

void ConstructHtmlFileName(const QString& s, const QString& C, const QString& KidNumb, QString& Sp1, QString& Sp2,
                           std::int16_t Order, QString& name) {
    if (s.isEmpty() && (Order == 2 || Order == 3)) {
        Sp1.clear();
    }
    if (s.isEmpty() && Order >= 4) {
        Sp2.clear();
    }
    const QStringList names = {
        KidNumb + Sp1 + C,           C + Sp1 + KidNumb,           s + Sp1 + KidNumb + Sp2 + C,
        s + Sp1 + C + Sp2 + KidNumb, KidNumb + Sp1 + C + Sp2 + s, C + Sp1 + KidNumb + Sp2 + s,
        KidNumb + Sp1 + s + Sp2 + C, C + Sp1 + s + Sp2 + KidNumb,
    };
    if (Order >= 0 && Order < HtmlOrderCount) {
        name = names[Order] + QStringLiteral(".htm");
    }
}
