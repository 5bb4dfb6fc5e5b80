#include "options/EmailPanel.h"

#include "app/CFG_2015.h"
#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/widgets/TextBox.h"

#include <QHBoxLayout>
#include <QLabel>

EmailPanel::EmailPanel(QWidget* parent) : SetupPanel(2, parent), txtSMTP(NewControl<TextBox>("txtSMTP", this)) {
    Column->addWidget(NewExplanation("lblEM1", this));
    Column->addWidget(NewExplanation("lblEM2", this));
    auto* row = new QHBoxLayout;
    row->addWidget(NewLabel("lblSMTP", this, txtSMTP));
    row->addWidget(txtSMTP, 1);
    Column->addLayout(row);
    Column->addStretch();
    txtSMTP->SetLostFocusRule([this] { return txtSMTP_LostFocus(); });
}

void EmailPanel::Load() {
    txtSMTP->setText(ProgramConfig.SMTPHostName);
}

void EmailPanel::Save() const {
    ProgramConfig.SMTPHostName = txtSMTP->text();
}

bool EmailPanel::txtSMTP_LostFocus() {
    QString host = TrimBlanks(txtSMTP->text());
    txtSMTP->setText(host);
    CheckInputText(host, 0, 0, QString(), 0);
    if (ErrorPosition != 0) {
        return false;
    }
    if (host.contains(u'@')) {
        ShowNotice(MessageIcon::None, QStringLiteral("SMTP ERROR"),
                   QStringLiteral("Warning! The 'at' symbol (@) is not usually part of this address."));
    }
    return true;
}
