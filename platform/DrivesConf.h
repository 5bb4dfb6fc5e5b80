#pragma once

#include "platform/CaptionLanguage.h"
#include "platform/MappedVolumes.h"

#include <QByteArray>
#include <QStringList>
#include <vector>

/// What the text file `drives.conf` says: one LETTER=FOLDER a line (`G=/srv/gradebook`), letters in either case. Blanks
/// and tabs around the letter, the "=" and the folder are ignored, and so are slashes at the folder's end, empty lines
/// and lines that begin with "#". Lines end LF, CR LF or CR. The bytes of a folder's name are the disk's own.
struct DrivesConf {
    struct BadLine {
        int Number = 0; ///< counted from 1
        QString Text;
        QString Reason; ///< a sentence
    };

    DriveTable Drives;             ///< without a line for it, C is the root folder
    std::vector<BadLine> BadLines; ///< skipped: no letter, no absolute folder, a letter for the second time
};

/// Reads the bytes of a drives.conf; the reasons are in the language.
DrivesConf ReadDrivesConf(const QByteArray& bytes, CaptionLanguage language = CaptionLanguage::English);

/// What to tell the user about each skipped line: which one it is, its text and the reason.
QStringList BadLineTexts(const DrivesConf& conf, CaptionLanguage language = CaptionLanguage::English);

/// The program folder in the program's form, without a trailing backslash. A folder that no drive of the table reaches,
/// or whose name cannot be written, is added to the table as the first free letter from Z backwards. Without a free
/// letter Z changes hands, and `complaint` says so; else it stays as it was.
QString DriveForProgramFolder(SystemCalls& calls, DriveTable& drives, const NativePath& folder, QString& complaint,
                              CaptionLanguage language = CaptionLanguage::English);
