#include "tests/e2e/Seen.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <stdexcept>

namespace {

QRect RectangleOf(const QJsonValue& value) {
    const QJsonArray numbers = value.toArray();
    return {numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt()};
}

SeenControl ControlOf(const QJsonObject& described) {
    SeenControl control;
    control.Name = described[QStringLiteral("name")].toString();
    control.Kind = described[QStringLiteral("kind")].toString();
    control.Text = described[QStringLiteral("text")].toString();
    control.Visible = described[QStringLiteral("visible")].toBool();
    control.Enabled = described[QStringLiteral("enabled")].toBool();
    control.Focused = described[QStringLiteral("focused")].toBool();
    control.Checked = described[QStringLiteral("checked")].toBool();
    control.CoveredBy = described[QStringLiteral("coveredBy")].toString();
    control.Place = RectangleOf(described[QStringLiteral("place")]);
    return control;
}

SeenWindow WindowOf(const QJsonObject& described) {
    SeenWindow window;
    window.Name = described[QStringLiteral("name")].toString();
    window.Title = described[QStringLiteral("title")].toString();
    window.Active = described[QStringLiteral("active")].toBool();
    window.Drags = described[QStringLiteral("drags")].toInt();
    window.Place = RectangleOf(described[QStringLiteral("place")]);
    for (const auto& control : described[QStringLiteral("controls")].toArray()) {
        window.Controls.append(ControlOf(control.toObject()));
    }
    return window;
}

QString WithoutAccessKey(QString text) {
    return text.remove(QLatin1Char('&'));
}

const SeenControl* Find(const SeenWindow& window, const QString& nameOrText) {
    for (const SeenControl& control : window.Controls) {
        if (control.Name == nameOrText || (control.Name.isEmpty() && WithoutAccessKey(control.Text) == nameOrText)) {
            return &control;
        }
    }
    return nullptr;
}

} // namespace

const SeenControl& SeenWindow::Control(const QString& nameOrText) const {
    if (const SeenControl* control = Find(*this, nameOrText)) {
        return *control;
    }
    QStringList names;
    for (const SeenControl& control : Controls) {
        names.append(control.Name.isEmpty() ? control.Text : control.Name);
    }
    throw std::runtime_error(QStringLiteral("\"%1\" has no %2, only: %3")
                                 .arg(Title, nameOrText, names.join(QStringLiteral(", ")))
                                 .toStdString());
}

bool SeenWindow::Has(const QString& nameOrText) const {
    return Find(*this, nameOrText) != nullptr;
}

QString SeenWindow::Focus() const {
    for (const SeenControl& control : Controls) {
        if (control.Focused && !control.Name.startsWith(QLatin1String("qt_"))) {
            return control.Name;
        }
    }
    return {};
}

const SeenWindow* SeenScreen::Window(const QString& title) const {
    for (const SeenWindow& window : Windows) {
        if (window.Title == title) {
            return &window;
        }
    }
    return nullptr;
}

QString SeenScreen::Titles() const {
    QStringList titles;
    for (const SeenWindow& window : Windows) {
        titles.append(window.Active ? window.Title + QStringLiteral(" (active)") : window.Title);
    }
    return titles.isEmpty() ? QStringLiteral("no window") : titles.join(QStringLiteral(", "));
}

SeenScreen ReadAnswer(const QByteArray& line) {
    const QJsonDocument answer = QJsonDocument::fromJson(line);
    if (!answer.isObject()) {
        throw std::runtime_error("The program wrote to its standard output: " + line.toStdString());
    }
    SeenScreen screen;
    for (const auto& window : answer[QStringLiteral("windows")].toArray()) {
        screen.Windows.append(WindowOf(window.toObject()));
    }
    return screen;
}
