#include "platform/OpenFile.h"
#include "platform/SafeWriter.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/TestFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <functional>
#include <gtest/gtest.h>

// A file that a second process has open.

namespace {

const QString Target = QStringLiteral("c:\\GW_v12_PRG.CFG");
constexpr int Patience = 60'000; // milliseconds; for a process to start on a busy machine

class Holder {
public:
    Holder(const NativePath& file, const QString& sharing) {
        process.start(QStringLiteral(GRADEWELL_FILE_HOLDER), {QString::fromStdWString(file.native()), sharing});
        process.waitForReadyRead(Patience);
        EXPECT_EQ(process.readLine().trimmed().toStdString(), "held") << process.errorString().toStdString();
    }
    ~Holder() { LetGo(); }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

    void LetGo() {
        process.closeWriteChannel();
        EXPECT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(Patience));
    }

private:
    QProcess process;
};

// The real calls, of which waiting does something else.
class WaitingCalls : public FaultyCalls {
public:
    explicit WaitingCalls(std::function<void(int waited)> whileWaiting) : onWait(std::move(whileWaiting)) {}
    void Wait(int milliseconds) override {
        FaultyCalls::Wait(milliseconds);
        onWait(Waited);
    }

private:
    std::function<void(int)> onWait;
};

} // namespace

TEST(HeldFile, AReaderThatNeverLetsGoIsWaitedForTwoSecondsAndThenReported) {
    for (const char* sharing : {"r", "rw", "-"}) {
        TestFolder folder;
        folder.Write(Target, "old");
        {
            const Holder holder(folder.Native(Target), QString::fromLatin1(sharing));
            QElapsedTimer clock;
            clock.start();
            const SystemError error = SafeSave(RealSystemCalls(), folder.Native(Target), "new");
            EXPECT_EQ(error.Number, 70) << sharing;
            EXPECT_EQ(error.Description, QStringLiteral("Permission denied"));
            EXPECT_GE(clock.elapsed(), 1900) << sharing;
            EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("GW_v12_PRG.CFG")}) << sharing;
        }
        EXPECT_EQ(folder.Read(Target), "old") << sharing;
        EXPECT_FALSE(SafeSave(RealSystemCalls(), folder.Native(Target), "new")) << sharing;
        EXPECT_EQ(folder.Read(Target), "new") << sharing;
    }
}

TEST(HeldFile, AReaderThatLetsGoInTimeIsWaitedFor) {
    TestFolder folder;
    folder.Write(Target, "old");
    Holder holder(folder.Native(Target), QStringLiteral("r"));
    WaitingCalls calls([&](int waited) {
        if (waited >= 1000) {
            holder.LetGo();
        }
    });
    EXPECT_FALSE(SafeSave(calls, folder.Native(Target), "new"));
    EXPECT_EQ(calls.Waited, 1000);
    EXPECT_EQ(folder.Read(Target), "new");
    EXPECT_EQ(folder.Names(QStringLiteral("c:\\")), QStringList{QStringLiteral("GW_v12_PRG.CFG")});
}

TEST(HeldFile, AFileThatOthersMayReadIsRead) {
    TestFolder folder;
    folder.Write(Target, "old");
    QByteArray bytes;
    {
        const Holder holder(folder.Native(Target), QStringLiteral("r"));
        EXPECT_EQ(ReadFile(RealSystemCalls(), folder.Native(Target), bytes), 0);
        EXPECT_EQ(bytes, "old");
    }
    const Holder holder(folder.Native(Target), QStringLiteral("-"));
    EXPECT_EQ(ErrorFromErrno(ReadFile(RealSystemCalls(), folder.Native(Target), bytes)).Number, 70);
}
