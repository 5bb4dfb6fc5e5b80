#pragma once

#include "app/CFG_2015.h"
#include "tests/app/FieldValues.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

/// A file with another value in every field, and what is read of it.
class ConfigText : public testing::Test {
protected:
    ConfigText() {
        SetProductTexts(Edition::English);
        SetTitleLine(2016);
    }

    ProgramConfigRecord Defaults = DefaultRecord();
    const QByteArray File = HandWritten("app/every-field.cfg");

    static ProgramConfigRecord Read(const QByteArray& bytes, ItemError* error = nullptr) {
        ProgramConfigRecord config = DefaultRecord();
        const ItemError found = ReadConfigText(bytes, config);
        if (error != nullptr) {
            *error = found;
        }
        return config;
    }

    QByteArray With(const QByteArray& old, const QByteArray& fresh) const {
        QByteArray changed = File;
        EXPECT_EQ(changed.count(old), 1) << old.constData();
        return changed.replace(old, fresh);
    }

    // The lines of the file, each with its line end.
    QList<QByteArray> Lines() const {
        QList<QByteArray> lines;
        for (qsizetype at = 0; at < File.size();) {
            const qsizetype end = File.indexOf('\n', at) + 1;
            lines.append(File.mid(at, end - at));
            at = end;
        }
        return lines;
    }
};
