/// A plugin of the window system that lets a test look into the running program: for every byte that comes in on
/// standard input, it writes one line of JSON to standard output that describes the windows and controls on the screen.
/// It only looks; keys and mouse come from the display server. The program itself knows nothing of it: Qt loads it
/// where QT_QPA_GENERIC_PLUGINS names "probe".

#include <QAbstractButton>
#include <QApplication>
#include <QDrag>
#include <QFile>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <QThread>
#include <QWidget>
#include <cstdio>
#include <memory>

namespace {

/// A rectangle as the display server sees it, in device pixels.
QJsonArray DevicePixels(const QRect& rectangle, qreal ratio) {
    return {qRound(rectangle.x() * ratio), qRound(rectangle.y() * ratio), qRound(rectangle.width() * ratio),
            qRound(rectangle.height() * ratio)};
}

/// What the control shows, whatever its kind calls it.
QString ShownText(const QWidget& control) {
    for (const char* name : {"text", "title", "currentText", "path"}) {
        const QVariant value = control.property(name);
        if (value.isValid()) {
            return value.toString();
        }
    }
    return {};
}

/// The control that a click at that place would reach, unless it is `control` itself or a part of it: what covers it.
QString CoveredBy(const QWidget& control, const QPoint& place) {
    const QWidget* reached = QApplication::widgetAt(place);
    if (reached == nullptr || reached == &control || control.isAncestorOf(reached)) {
        return {};
    }
    return reached->objectName().isEmpty() ? QString::fromLatin1(reached->metaObject()->className())
                                           : reached->objectName();
}

QJsonObject Describe(const QWidget& control) {
    const QRect shown = control.visibleRegion().boundingRect();
    const QRect place(control.mapToGlobal(shown.topLeft()), shown.size());
    return {{QStringLiteral("name"), control.objectName()},
            {QStringLiteral("kind"), QString::fromLatin1(control.metaObject()->className())},
            {QStringLiteral("text"), ShownText(control)},
            {QStringLiteral("visible"), control.isVisible()},
            {QStringLiteral("enabled"), control.isEnabled()},
            {QStringLiteral("focused"), control.hasFocus()},
            {QStringLiteral("checked"), control.property("checked").toBool()},
            {QStringLiteral("coveredBy"), shown.isEmpty() ? QString() : CoveredBy(control, place.center())},
            {QStringLiteral("place"), DevicePixels(place, control.devicePixelRatioF())}};
}

QJsonObject DescribeWindow(const QWidget& window) {
    QJsonArray controls;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const bool button = qobject_cast<const QAbstractButton*>(control) != nullptr;
        if (control->window() == &window && (button || !control->objectName().isEmpty())) {
            controls.append(Describe(*control));
        }
    }
    return {{QStringLiteral("name"), window.objectName()},
            {QStringLiteral("title"), window.windowTitle()},
            {QStringLiteral("active"), window.isActiveWindow()},
            {QStringLiteral("drags"), static_cast<int>(window.findChildren<QDrag*>().size())},
            {QStringLiteral("place"), DevicePixels(window.frameGeometry(), window.devicePixelRatioF())},
            {QStringLiteral("controls"), controls}};
}

QByteArray DescribeScreen() {
    QJsonArray windows;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            windows.append(DescribeWindow(*window));
        }
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("windows"), windows}}).toJson(QJsonDocument::Compact) + '\n';
}

#ifdef _WIN32
// Windows tells nobody that there is something to read on a pipe, so a thread waits for it.
class Probe : public QObject {
public:
    Probe() : reader(QThread::create([this] { Read(); })) {
        output.open(1, QIODevice::WriteOnly);
        reader->start();
    }

private:
    QFile output;
    QThread* reader; // ends with the program: nothing else ends a read from a pipe

    void Read() {
        while (std::getchar() != EOF) {
            QMetaObject::invokeMethod(this, [this] {
                output.write(DescribeScreen());
                output.flush();
            });
        }
    }
};
#else
class Probe : public QObject {
public:
    Probe() : requests(0, QSocketNotifier::Read) {
        input.open(0, QIODevice::ReadOnly | QIODevice::Unbuffered);
        output.open(1, QIODevice::WriteOnly);
        connect(&requests, &QSocketNotifier::activated, this, [this] { Answer(); });
    }

private:
    QFile input;
    QFile output;
    QSocketNotifier requests;

    void Answer() {
        char request = 0;
        if (input.read(&request, 1) != 1) {
            requests.setEnabled(false); // whoever asked is gone
            return;
        }
        output.write(DescribeScreen());
        output.flush();
    }
};
#endif

} // namespace

class ProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Probe.json")

public:
    QObject* create(const QString&, const QString&) override { return new Probe; } // Qt owns it
};

#ifdef QT_STATICPLUGIN
Q_IMPORT_PLUGIN(ProbePlugin)
#endif

#include "Probe.moc"
