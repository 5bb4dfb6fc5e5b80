#include "import/FieldMatching.h"

#include "platform/CodePage.h"

#include <algorithm>
#include <utility>

FieldMatching::FieldMatching(FieldList fieldsToUse) : fields(std::move(fieldsToUse)) {}

QString FieldMatching::Name(int row) const {
    return names[static_cast<std::size_t>(row)];
}

bool FieldMatching::HasMatch(int field) const {
    return std::find(names.begin() + 1, names.begin() + 1 + matchCount, Caption(field)) !=
           names.begin() + 1 + matchCount;
}

void FieldMatching::SetRowCount(int rows) {
    rowCount = std::clamp(rows, 0, MatchLimit);
}

int FieldMatching::Choose(int field) {
    chosen = field == ImportIf2Field && !IsUsed(ImportIf1Field) ? ImportIf1Field : field;
    return chosen;
}

bool FieldMatching::MatchChosen() {
    if (chosen == 0 || IsUsed(chosen) || matchCount >= rowCount) {
        return false;
    }
    ++matchCount;
    names[static_cast<std::size_t>(matchCount)] = Caption(chosen);
    used[static_cast<std::size_t>(chosen)] = chosen != IgnoreField;
    return true;
}

bool FieldMatching::Drop() {
    const bool matched = MatchChosen();
    ForgetChosen();
    return matched;
}

bool FieldMatching::ClearLast() {
    if (matchCount == 0) {
        return false;
    }
    QString& last = names[static_cast<std::size_t>(matchCount)];
    for (int field = 1; field < IgnoreField; ++field) {
        if (Caption(field) == last || (field == DobField && IsDobEntry(last, fields.DobPrefix))) {
            used[static_cast<std::size_t>(field)] = false;
        }
    }
    last.clear();
    --matchCount;
    return true;
}

void FieldMatching::ClearAll() {
    matchCount = 0;
    names.fill(QString());
    used.fill(false);
}

void FieldMatching::SetDobFormat(int format) {
    dobFormat = format;
    for (int row = 1; row <= matchCount; ++row) {
        QString& name = names[static_cast<std::size_t>(row)];
        if (UpperCase(name).startsWith(fields.DobPrefix)) {
            name = fields.DobCaption(format);
        }
    }
}

void FieldMatching::ShowStored(const MatchList& matches, int count) {
    SetDobFormat(DobFormatOf(matches[0]));
    matchCount = std::clamp(count, 0, rowCount);
    for (int row = 1; row <= matchCount; ++row) {
        names[static_cast<std::size_t>(row)] = matches[static_cast<std::size_t>(row)];
        MarkUsed(Name(row));
    }
}

void FieldMatching::MarkUsed(const QString& name) {
    for (int field = 1; field < IgnoreField; ++field) {
        if (Caption(field) == name || (field == DobField && IsDobEntry(name, fields.DobPrefix))) {
            used[static_cast<std::size_t>(field)] = true;
        }
    }
}
