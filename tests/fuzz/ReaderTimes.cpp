#include "tests/fuzz/ReaderTimes.h"

#include "app/ConfigFile.h"
#include "import/LineIndex.h"
#include "import/RecordSplitter.h"
#include "import/SetupFile.h"
#include "import/Utf8Suspicion.h"
#include "options/SchemeFile.h"
#include "platform/DrivesConf.h"
#include "platform/ItemText.h"
#include "transfer/TransferFile.h"

#include <algorithm>
#include <ctime>
#include <limits>

namespace {

void ReadItems(const QByteArray& bytes) {
    ItemReader reader(bytes);
    QString text;
    while (reader.ReadText(text)) {
    }
}

void ReadConfig(const QByteArray& bytes) {
    ProgramConfigRecord config;
    ReadConfigText(bytes, config);
}

void ReadScheme(const QByteArray& bytes) {
    static_cast<void>(ReadSchemeText(bytes));
}

void ReadTransfer(const QByteArray& bytes) {
    TransferSettings settings;
    ReadTransferText(bytes, settings);
}

void ReadWholeSetup(const QByteArray& bytes) {
    ImportSetup setup;
    if (ReadSetup(bytes, setup)) {
        CheckMatches(setup, EnglishFieldList());
    }
}

void ReadRecord(const QByteArray& bytes) {
    static_cast<void>(SplitImportRecord(bytes));
}

void CountLines(const QByteArray& bytes) {
    LineIndex index;
    index.Add(bytes.constData(), bytes.size());
    Utf8Suspicion suspicion;
    suspicion.Add(bytes.constData(), bytes.size());
}

void ReadDrives(const QByteArray& bytes) {
    static_cast<void>(ReadDrivesConf(bytes));
}

} // namespace

std::span<const TimedReader> TimedReaders() {
    static constexpr TimedReader readers[] = {
        {"quoted", ReadItems},     {"config", ReadConfig}, {"scheme", ReadScheme}, {"transfer", ReadTransfer},
        {"setup", ReadWholeSetup}, {"record", ReadRecord}, {"lines", CountLines},  {"drives", ReadDrives},
    };
    return readers;
}

double ReadingTime(const TimedReader& reader, const QByteArray& bytes) {
    double least = std::numeric_limits<double>::max();
    for (int run = 0; run < 3; ++run) {
        const std::clock_t start = std::clock();
        reader.Read(bytes);
        least = std::min(least, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}
