#include "tests/support/TestFolder.h"

#include "platform/BackgroundWork.h"

#include <QFile>
#include <fstream>
#include <gtest/gtest.h>

namespace {

NativePath NativeOf(const QString& text) {
    return NativePath(text.toStdU16String());
}

} // namespace

TestFolder::TestFolder(SystemCalls& calls)
    : Drives(calls, DriveTable{{QLatin1Char('c'), NativeOf(directory.path())}}), Screen(Drives, calls) {}

TestFolder::~TestFolder() {
    AwaitBackgroundWork();
}

NativePath TestFolder::Native(const QString& path) const {
    QString below = path.mid(3);
    return NativeOf(directory.path()) / NativeOf(below.replace(QLatin1Char('\\'), QLatin1Char('/')));
}

void TestFolder::MakeFolder(const QString& path) {
    std::filesystem::create_directories(Native(path));
}

void TestFolder::Write(const QString& path, const QByteArray& bytes) {
    std::filesystem::create_directories(Native(path).parent_path());
    std::ofstream file(Native(path), std::ios::binary | std::ios::trunc);
    file.write(bytes.constData(), bytes.size());
    ASSERT_TRUE(file.good()) << path.toStdString();
}

QByteArray TestFolder::Read(const QString& path) const {
    std::ifstream file(Native(path), std::ios::binary);
    EXPECT_TRUE(file.good()) << path.toStdString();
    return QByteArray::fromStdString({std::istreambuf_iterator<char>(file), {}});
}

bool TestFolder::Exists(const QString& path) const {
    return std::filesystem::exists(Native(path));
}

void TestFolder::Remove(const QString& path) {
    std::filesystem::remove_all(Native(path));
}

QStringList TestFolder::Names(const QString& path) const {
    QStringList names;
    for (const auto& entry : std::filesystem::directory_iterator(Native(path))) {
        names.append(QString::fromStdU16String(entry.path().filename().u16string()));
    }
    names.sort();
    return names;
}

QByteArray HandWritten(const char* name) {
    QFile file(QStringLiteral(GRADEWELL_TEST_DATA "/") + QString::fromUtf8(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}
