#include "platform/qt/windows/SystemFontDialog.h"

#include <QWidget>
#include <algorithm>
#include <windows.h>

#include <commdlg.h>
#include <winspool.h>

namespace {

constexpr int PointsAnInch = 72;

// The default printer to ask for its fonts; none where there is no printer.
class PrinterContext {
public:
    PrinterContext() {
        wchar_t name[256] = {};
        DWORD size = 256;
        if (GetDefaultPrinterW(name, &size) != 0) {
            context = CreateICW(nullptr, name, nullptr, nullptr);
        }
    }
    ~PrinterContext() {
        if (context != nullptr) {
            DeleteDC(context);
        }
    }
    PrinterContext(const PrinterContext&) = delete;
    PrinterContext& operator=(const PrinterContext&) = delete;

    HDC Context() const { return context; }

private:
    HDC context = nullptr;
};

int DotsAnInch() {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dots;
}

} // namespace

FontDialogAnswer AskSystemForFont(const QWidget* owner, const QString& fontName, int pointSize) {
    const PrinterContext printer;
    LOGFONTW font = {};
    font.lfHeight = -MulDiv(pointSize, DotsAnInch(), PointsAnInch);
    font.lfCharSet = DEFAULT_CHARSET;
    const std::wstring name = fontName.toStdWString();
    std::copy_n(name.begin(), std::min<std::size_t>(name.size(), LF_FACESIZE - 1), font.lfFaceName);
    CHOOSEFONTW asked = {};
    asked.lStructSize = sizeof asked;
    asked.hwndOwner = owner != nullptr ? reinterpret_cast<HWND>(owner->winId()) : nullptr;
    asked.hDC = printer.Context();
    asked.lpLogFont = &font;
    asked.Flags = CF_INITTOLOGFONTSTRUCT | CF_SCREENFONTS;
    if (printer.Context() != nullptr) {
        asked.Flags |= CF_PRINTERFONTS;
    }
    if (fontName.isEmpty()) {
        asked.Flags |= CF_NOFACESEL;
    }
    if (ChooseFontW(&asked) == 0 || font.lfFaceName[0] == L'\0') {
        return {QString(), MakeError(ErrorNumber::DialogCancelled)};
    }
    return {QString::fromWCharArray(font.lfFaceName), {}};
}
