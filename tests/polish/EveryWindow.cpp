#include "tests/polish/EveryWindow.h"

#include "tests/screens/Viewer.h"
#include "tests/screens/Windows.h"
#include "tests/support/ScriptedDesktop.h"
#include "tests/support/WindowInput.h"

namespace {

class Looker : public Viewer {
public:
    using Look = std::function<void(QWidget&, const std::string&)>;

    Looker(std::string editionToLookAt, const Look& lookToTake, const QSize& screenOfDesktop)
        : edition(std::move(editionToLookAt)), look(lookToTake), screen(screenOfDesktop) {}

    void Take(QWidget& window, const char* name) override {
        dynamic_cast<ScriptedDesktop&>(TheDesktop()).Screen = screen;
        ShowActive(window);
        constexpr int nestedLayouts = 8; // a text passes through one of them in each round
        for (int round = 0; round < nestedLayouts; ++round) {
            QCoreApplication::processEvents();
        }
        look(window, edition + ", " + name);
    }

private:
    std::string edition;
    const Look& look;
    QSize screen;
};

} // namespace

void LookAtEveryWindow(const std::function<void(QWidget& window, const std::string& name)>& look, const QSize& screen) {
    for (const Edition edition : {Edition::English, Edition::French}) {
        Looker looker(edition == Edition::English ? "english" : "french", look, screen);
        TakeMenu(edition, looker);
        TakeGeneralOptions(edition, looker);
        TakeImport(edition, looker);
        TakeAdmin(edition, looker);
        TakeTransfer(edition, looker);
    }
}
