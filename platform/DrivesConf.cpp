#include "platform/DrivesConf.h"

#include "platform/NativeText.h"
#include "platform/ProgramPath.h"

namespace {

constexpr char ByteOrderMark[] = "\xEF\xBB\xBF";

bool IsBlank(char byte) {
    return byte == ' ' || byte == '\t';
}

QByteArray WithoutBlanks(QByteArray bytes) {
    while (!bytes.isEmpty() && IsBlank(bytes.back())) {
        bytes.chop(1);
    }
    qsizetype first = 0;
    while (first < bytes.size() && IsBlank(bytes[first])) {
        ++first;
    }
    return bytes.mid(first);
}

QChar LetterOf(const QByteArray& name) {
    const char letter = name.size() == 1 ? name.toLower()[0] : '\0';
    return letter >= 'a' && letter <= 'z' ? QChar(QLatin1Char(letter)) : QChar();
}

QByteArray WithoutSlashes(QByteArray folder) {
    while (folder.size() > 1 && folder.endsWith('/')) {
        folder.chop(1);
    }
    return folder;
}

// Adds the drive of a line; returns why it is skipped, nothing when it is good.
QString AddLine(DriveTable& drives, const QByteArray& line, CaptionLanguage language) {
    const qsizetype equals = line.indexOf('=');
    const QChar letter = LetterOf(WithoutBlanks(line.left(equals)));
    if (equals < 0 || letter.isNull()) {
        return InLanguage(language, "It does not begin with a drive letter and \"=\".",
                          "Elle ne commence pas par une lettre de lecteur suivie de « = ».");
    }
    const QByteArray folder = WithoutSlashes(WithoutBlanks(line.mid(equals + 1)));
    const NativePath native = NativeFromBytes(folder);
    if (!native.is_absolute() || folder.contains('\0')) {
        return InLanguage(language, "The folder is not a full path such as \"/srv/gradebook\".",
                          "Le dossier n'est pas un chemin complet comme « /srv/carnet ».");
    }
    if (drives.contains(letter)) {
        return InLanguage(language, "An earlier line already gives drive %1.",
                          "Une ligne précédente donne déjà le lecteur %1.")
            .arg(letter.toUpper());
    }
    drives.insert(letter, native);
    return {};
}

} // namespace

DrivesConf ReadDrivesConf(const QByteArray& bytes, CaptionLanguage language) {
    QByteArray text = bytes.startsWith(ByteOrderMark) ? bytes.mid(3) : bytes;
    text.replace("\r\n", "\n").replace('\r', '\n');
    DrivesConf conf;
    int number = 0;
    for (const QByteArray& whole : text.split('\n')) {
        const QByteArray line = WithoutBlanks(whole);
        ++number;
        if (line.isEmpty() || line.startsWith('#')) {
            continue;
        }
        const QString reason = AddLine(conf.Drives, line, language);
        if (!reason.isEmpty()) {
            conf.BadLines.push_back({number, QString::fromUtf8(line), reason});
        }
    }
    if (!conf.Drives.contains(u'c')) {
        conf.Drives.insert(u'c', NativePath("/"));
    }
    return conf;
}

QStringList BadLineTexts(const DrivesConf& conf, CaptionLanguage language) {
    QStringList texts;
    for (const DrivesConf::BadLine& line : conf.BadLines) {
        texts.append(InLanguage(language, "Line %1 of drives.conf is skipped:\n[%2]\n\n%3",
                                "La ligne %1 de drives.conf est ignorée :\n[%2]\n\n%3")
                         .arg(QString::number(line.Number), line.Text, line.Reason));
    }
    return texts;
}

QString DriveForProgramFolder(SystemCalls& calls, DriveTable& drives, const NativePath& folder, QString& complaint,
                              CaptionLanguage language) {
    const Volumes::ProgramResult reached = MappedVolumes(calls, drives).FromNative(folder);
    if (!reached.Error) {
        return WithoutTrailingBackslash(reached.Path);
    }
    char16_t letter = u'z';
    while (letter > u'a' && drives.contains(letter)) {
        --letter;
    }
    if (drives.contains(letter)) {
        letter = u'z';
        complaint =
            InLanguage(language,
                       "Every drive letter of drives.conf is taken, and none reaches the program folder.\n\n"
                       "Drive Z stands for the program folder instead of [%1].",
                       "Toutes les lettres de lecteur de drives.conf sont prises et aucune ne mène au dossier du "
                       "programme.\n\nLe lecteur Z désigne le dossier du programme au lieu de [%1].")
                .arg(ShownNative(drives.value(letter)));
    }
    drives.insert(letter, folder);
    return QString(QChar(letter)) + QChar(u':');
}
