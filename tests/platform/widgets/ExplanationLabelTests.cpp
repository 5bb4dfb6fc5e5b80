#include "platform/widgets/ExplanationLabel.h"
#include "tests/support/PrintText.h"
#include "tests/support/WindowInput.h"

namespace {

const QString Sentences = QStringLiteral("Use this to set the default location for teachers to save their data, paths "
                                         "to an external word processor and student photographs.");

// An ordinary label of the same text.
void MakePlain(QLabel& plain, const QLabel& like) {
    plain.setTextFormat(Qt::PlainText);
    plain.setWordWrap(true);
    plain.setText(like.text());
    plain.setFont(like.font());
    plain.setAlignment(like.alignment());
    plain.setEnabled(like.isEnabled());
    plain.setContentsMargins(like.contentsMargins());
}

void ExpectLikePlain(ExplanationLabel& label, const char* what) {
    QLabel plain;
    MakePlain(plain, label);
    for (const int width : {90, 200, 525, 1200}) {
        EXPECT_EQ(label.heightForWidth(width), plain.heightForWidth(width)) << what << " at " << width;
        label.resize(width, plain.heightForWidth(width) + 21);
        plain.resize(label.size());
        EXPECT_EQ(label.grab().toImage(), plain.grab().toImage()) << what << " at " << width;
    }
}

TEST(ExplanationLabels, LookLikeAnOrdinaryLabel) {
    ExplanationLabel label;
    ExpectLikePlain(label, "no text");
    label.setText(Sentences);
    ExpectLikePlain(label, "middle");
    label.setAlignment(Qt::AlignLeading | Qt::AlignTop);
    ExpectLikePlain(label, "top");
    label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    ExpectLikePlain(label, "bottom right");
    label.setText(QStringLiteral("one\ntwo\n\nthree ") + Sentences);
    ExpectLikePlain(label, "lines");
    QFont font = label.font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.5);
    label.setFont(font);
    ExpectLikePlain(label, "a larger font");
    label.setEnabled(false);
    ExpectLikePlain(label, "disabled");
    label.setContentsMargins(3, 5, 7, 11);
    ExpectLikePlain(label, "margins");
    label.setText(QStringLiteral("short"));
    ExpectLikePlain(label, "another text");
}

TEST(ExplanationLabels, AskForTheWidthThatTheyWillHave) {
    ExplanationLabel label;
    label.setText(Sentences);
    EXPECT_EQ(label.sizeHint().width(), 320);
    label.SetPreferredWidth(525);
    EXPECT_EQ(label.sizeHint().width(), 525);
    EXPECT_LE(label.minimumSizeHint().width(), 120);
}

} // namespace
