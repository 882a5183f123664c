// What a person sees of the twelve dialogs with the probes of the samples, checked by measure. The pictures
// are left in the folder "pictures" for people to look at.

#include "QuorConversions/resources/StringIds.h"
#include "QuorConversions/resources/StringTable.h"
#include "tests/support/Objects.h"
#include "tests/support/SettingsClasses.h"
#include "tests/support/TestedScreen.h"
#include "tests/toolkits/win32/Win32Screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include <objidl.h>

#include <gdiplus.h>

using namespace QuorConversions;
using Scripted::Person;
using Support::HandleInput;
using Support::settingsClasses;
using Support::TextOf;
using Support::WindowOf;

namespace {

const CLSID pngFormat = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

/// The graphics of the system that write pictures.
class PictureWriter {
public:
    PictureWriter() {
        const Gdiplus::GdiplusStartupInput input;
        EXPECT_EQ(Gdiplus::GdiplusStartup(&m_token, &input, nullptr), Gdiplus::Ok);
    }
    PictureWriter(const PictureWriter&) = delete;
    PictureWriter& operator=(const PictureWriter&) = delete;
    ~PictureWriter() { Gdiplus::GdiplusShutdown(m_token); }

    /// Saves what the screen shows of a window.
    static void Save(HWND window, const std::filesystem::path& file) {
        RECT place{};
        GetWindowRect(window, &place);
        const int width = static_cast<int>(place.right - place.left);
        const int height = static_cast<int>(place.bottom - place.top);
        const HDC screen = GetDC(nullptr);
        const HDC memory = CreateCompatibleDC(screen);
        const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
        const HGDIOBJ before = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
        SelectObject(memory, before);
        {
            Gdiplus::Bitmap picture(bitmap, nullptr);
            EXPECT_EQ(picture.Save(file.c_str(), &pngFormat, nullptr), Gdiplus::Ok);
        }
        DeleteObject(bitmap);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
    }

private:
    ULONG_PTR m_token = 0;
};

RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

/// How wide the window has to be to show all of its text; 0 where that is no matter.
int WidthOfText(HWND window, const Control& control) {
    if (control.Kind() == ControlKind::TabStrip)
        return 0;
    const HDC dc = GetDC(window);
    const HGDIOBJ before =
        SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
    const std::wstring text = TextOf(window);
    RECT needed{};
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &needed, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(dc, before);
    ReleaseDC(window, dc);
    return static_cast<int>(needed.right);
}

/// How many columns of pixels of the window have more than one colour: where a text or a tab is.
int DrawnColumns(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const HDC dc = GetDC(window);
    int drawn = 0;
    for (int x = 0; x < client.right; ++x) {
        const COLORREF ground = GetPixel(dc, x, 4);
        bool isPlain = true;
        for (int y = 4; y < std::min(client.bottom, LONG{20}) - 3 && isPlain; ++y)
            isPlain = GetPixel(dc, x, y) == ground;
        drawn += isPlain ? 0 : 1;
    }
    ReleaseDC(window, dc);
    return drawn;
}

void ExpectWellDrawn(const Dialog& dialog) {
    RECT client{};
    GetClientRect(WindowOf(dialog), &client);
    MapWindowPoints(WindowOf(dialog), nullptr, reinterpret_cast<POINT*>(&client), 2);
    std::vector<RECT> places;
    for (const auto& control : dialog.Controls()) {
        const HWND window = WindowOf(*control);
        if (!control->IsShown() || !window)
            continue;
        SCOPED_TRACE(testing::PrintToString(control->Name()));
        const RECT place = PlaceOf(window);
        RECT both{};
        EXPECT_TRUE(IntersectRect(&both, &client, &place) && EqualRect(&both, &place))
            << "it stands outside of its window";
        const bool isNote = place.bottom - place.top > 20 && control->Kind() == ControlKind::Label;
        if (!isNote) {
            EXPECT_LE(WidthOfText(window, *control), place.right - place.left) << "its text is cut";
        }
        if (!TextOf(window).empty() || control->Kind() == ControlKind::TabStrip) {
            EXPECT_GT(DrawnColumns(window), 1) << "nothing is seen of it";
        }
        if (control->Kind() == ControlKind::Frame || control->Kind() == ControlKind::TabStrip)
            continue; // others stand in it
        for (const RECT& other : places)
            EXPECT_FALSE(IntersectRect(&both, &place, &other)) << "it overlaps another one";
        places.push_back(place);
    }
    EXPECT_GT(places.size(), 5U);
}

} // namespace

TEST(Win32PicturesTest, EveryDialogShowsTheProbeOfItsSampleAndNoTwoControlsOverlap) {
    const PictureWriter writer;
    const std::filesystem::path folder = "pictures";
    std::filesystem::create_directories(folder);
    std::size_t files = 0;
    for (const auto& sample : std::filesystem::directory_iterator(QUOR_SAMPLES)) {
        for (const auto& settingsClass : settingsClasses) {
            if (sample.path().extension().wstring() != std::wstring(L".") + settingsClass.fileExtension)
                continue;
            SCOPED_TRACE(testing::PrintToString(settingsClass));
            ++files;
            const auto platform = std::make_shared<Scripted::ScriptedPlatform>(Support::TestedScreen());
            const auto settings = Support::NewSettings<SettingsObject>(settingsClass.code, platform);
            platform->ChooseFile(sample.path().wstring());
            std::wstring chosen;
            ASSERT_TRUE(settings->OpenFile(0, chosen));
            platform->InDialog([&](Person& person) {
                const auto take = [&](const std::wstring& suffix) {
                    HandleInput();
                    const HWND window = WindowOf(person.Sees());
                    RedrawWindow(window, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
                    ExpectWellDrawn(person.Sees());
                    PictureWriter::Save(window, folder / (settingsClass.fileExtension + suffix + L".png"));
                };
                take(L"");
                if (settingsClass.code == CONV_ITS90) {
                    person.TurnTo(TableText(IDS_HIGH_RANGE));
                    take(L"-high");
                }
                person.Escape();
            });
            EXPECT_FALSE(settings->Edit());
            EXPECT_TRUE(platform->NothingLeft()) << testing::PrintToString(platform->Complaints());
        }
    }
    EXPECT_EQ(files, 12U);
}
