#include "app/ProductTexts.h"

#include "app/ProgramConfig.h"
#include "platform/ProgramPath.h"

ProgramConfigRecord ProgramConfig;

Edition ProgramEdition = Edition::English;
QString ProductName;
QString VersionText;
QString WindowTitle;
QString TransferExeName;
QString ConfigFilesText;
QString NoticeText;
QString TitleLine;
QString ProgramFolder;
QString ConfigFileName;
std::array<QString, 13> MonthNames;
std::array<QString, 8> WeekdayNames;

namespace {

// August is spelt "aôut" in every text of the French gradebook; it looks months up by these names.
constexpr const char* Months[][2] = {
    {"January", "janvier"}, {"February", "février"},  {"March", "mars"},
    {"April", "avril"},     {"May", "mai"},           {"June", "juin"},
    {"July", "juillet"},    {"August", "aôut"},       {"September", "septembre"},
    {"October", "octobre"}, {"November", "novembre"}, {"December", "décembre"},
};

constexpr const char* Weekdays[][2] = {
    {"Sunday", "dimanche"}, {"Monday", "lundi"},    {"Tuesday", "mardi"},   {"Wednesday", "mercredi"},
    {"Thursday", "jeudi"},  {"Friday", "vendredi"}, {"Saturday", "samedi"},
};

template <std::size_t Size, std::size_t Count>
void FillNames(std::array<QString, Size>& names, const char* const (&table)[Count][2], Edition edition) {
    static_assert(Size == Count + 1);
    for (std::size_t i = 0; i < Count; ++i) {
        names[i + 1] = QString::fromUtf8(table[i][edition == Edition::French ? 1 : 0]);
    }
}

} // namespace

void SetProductTexts(Edition edition) {
    const bool french = edition == Edition::French;
    const QString year = QStringLiteral("2016");
    ProgramEdition = edition;
    ProductName = french ? QStringLiteral("Carnelle") : QStringLiteral("Gradewell");
    VersionText = year + QStringLiteral(" CY");
    WindowTitle = ProductName + QStringLiteral(" ") + year + QStringLiteral(" Config");
    TransferExeName = (french ? QStringLiteral("CNT_") : QStringLiteral("GWTCY_")) + year + QStringLiteral(".exe");
    ConfigFilesText = french ? QString() : QStringLiteral("GW_v11_PRG.CFG and GW_v12_PRG.CFG");
    if (french) {
        ConfigFileName = QStringLiteral("CrNl7PRG.CFG"); // as the captions name it, until the file is located
    }
    FillNames(MonthNames, Months, edition);
    FillNames(WeekdayNames, Weekdays, edition);
}

void SetTitleLine(int year) {
    NoticeText = QStringLiteral("Copyright (c) %1").arg(year, 4, 10, QLatin1Char('0'));
    TitleLine = QStringLiteral("[%1 - %2 - %3]").arg(WindowTitle, VersionText, NoticeText);
}

QString ProgramFolderFrom(const QString& folder) {
    return WithoutTrailingBackslash(folder);
}
