/// Shows a window of the menu's size with as many plain widgets as are asked for, and ends when it is painted.

#include "benchmarks/Measuring.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int Columns = 3;

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(800, 600);
    auto* grid = new QGridLayout(&window);
    const int widgets = QByteArray(argv[1]).toInt();
    for (int number = 0; number < widgets; ++number) {
        const QString text = QStringLiteral("Plain widget %1").arg(number);
        QWidget* widget = number % 2 == 0 ? static_cast<QWidget*>(new QLabel(text)) : new QPushButton(text);
        grid->addWidget(widget, number / Columns, number % Columns);
    }
    EndWhenPainted(window);
    window.show();
    return QApplication::exec();
}
