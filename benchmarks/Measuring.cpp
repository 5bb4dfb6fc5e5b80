#include "benchmarks/Measuring.h"

#include <QApplication>
#include <QFile>
#include <QWidget>
#include <algorithm>
#include <cstdio>

namespace {

class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& window) : QObject(&window), watched(window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object == &watched) {
            watched.removeEventFilter(this);
            // The children are painted in the same go as the window; the queued call runs after them.
            QMetaObject::invokeMethod(
                this, [this] { Report(); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(object, event);
    }

private:
    QWidget& watched;

    void Report() {
        std::printf("painted %d %ld\n", int(watched.findChildren<QWidget*>().size()), PeakMemory());
        std::fflush(stdout);
        QApplication::exit();
    }
};

} // namespace

double Median(std::vector<double> figures) {
    const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
    std::nth_element(figures.begin(), middle, figures.end());
    return *middle;
}

bool ReportRatio(const QString& name, const QString& unit, double ours, double bare, double limit) {
    const double ratio = ours / bare;
    std::printf("%-34s %9.2f %s, bare %9.2f %s, ratio %.2f (at most %.2f)%s\n", qPrintable(name), ours,
                qPrintable(unit), bare, qPrintable(unit), ratio, limit, ratio <= limit ? "" : "  TOO MUCH");
    return ratio <= limit;
}

long PeakMemory() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).trimmed().split(' ').constFirst().toLong();
        }
    }
    return 0;
}

void EndWhenPainted(QWidget& window) {
    new PaintWatch(window);
}
