#pragma once

#include "tests/support/Messages.h"
#include "tests/support/Objects.h"
#include "tests/support/SettingsClasses.h"
#include "tests/support/TestedScreen.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Support {

using QuorConversions::Scripted::Person;
using Texts = std::vector<std::wstring>;

/// A settings object of one type, and a person who edits it. A message that the test does not announce, and a
/// dialog that is left open, fail the test.
template <class T>
class DialogTest : public testing::Test {
protected:
    explicit DialogTest(QuorConversions::EQuorConversionType type) : m_type(type) {
        platform->ExpectNoMessages();
    }
    void TearDown() override {
        EXPECT_EQ(platform->Complaints(), Texts{});
        EXPECT_TRUE(platform->NothingLeft()) << "not everything that was announced has happened";
    }

    /// True when the person did not leave the dialog by Cancel.
    bool Edit(std::function<void(Person&)> action) {
        platform->InDialog(std::move(action));
        return settings->Edit();
    }
    /// Edits, and leaves by OK.
    void EditAndTake(const std::function<void(Person&)>& action) {
        EXPECT_TRUE(Edit([&](Person& person) {
            action(person);
            person.Click(L"OK");
        }));
    }
    /// Opens the dialog to look at it, and leaves by Cancel.
    void Look(const std::function<void(const Person&)>& action) {
        EXPECT_FALSE(Edit([&](Person& person) {
            action(person);
            person.Click(L"Cancel");
        }));
    }
    /// Presses OK, which is refused with `message` and puts the focus on `focus`; then leaves by Cancel.
    void ExpectRefusal(const std::wstring& message, const std::wstring& focus,
                       const std::function<void(Person&)>& action = {}) {
        platform->ExpectMessage(message);
        EXPECT_FALSE(Edit([&](Person& person) {
            if (action)
                action(person);
            person.Click(L"OK");
            EXPECT_TRUE(person.Sees().IsOpen());
            EXPECT_EQ(person.Focused(), focus);
            person.Click(L"Cancel");
        }));
        ASSERT_FALSE(platform->Messages().empty());
        EXPECT_EQ(platform->Messages().back().title, L"Quor Scientific");
    }
    [[nodiscard]] const SettingsClass& Class() const {
        return *std::find_if(std::begin(settingsClasses), std::end(settingsClasses),
                             [this](const SettingsClass& c) { return c.code == m_type; });
    }
    /// The next Open finds a file with what `fill` puts into a new object.
    void NextFileHolds(const std::function<void(T&)>& fill) {
        const auto object = FreshSettings<T>(m_type, platform);
        fill(*object);
        std::shared_ptr<QuorIniFile::INIFile> file = std::make_shared<MemoryIniFile>();
        object->WriteToFile(file, L"", Class().sectionName);
        platform->MakeIniFilesWith([file] { return file; });
        platform->ChooseFile(L"C:\\probe.txt");
    }

private:
    QuorConversions::EQuorConversionType m_type;

protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>(TestedScreen());
    std::shared_ptr<T> settings = NewSettings<T>(m_type, platform);
};

inline std::wstring Element(const std::wstring& array, std::size_t index) {
    return array + L"(" + std::to_wstring(index) + L")";
}

inline const QuorConversions::Control& ControlOf(const Person& person, const std::wstring& name) {
    const QuorConversions::Control* const control = person.Sees().Find(name);
    if (!control)
        throw QuorConversions::Scripted::CannotDo(L"there is no control \"" + name + L"\"");
    return *control;
}

/// The texts of all elements of a control array, shown or not.
inline Texts All(const Person& person, const std::wstring& array) {
    Texts texts;
    for (std::size_t i = 0; person.Sees().Find(Element(array, i)); ++i)
        texts.push_back(person.Reads(Element(array, i)));
    return texts;
}

/// The texts of those elements that are visible, which must be the first ones.
inline Texts Visible(const Person& person, const std::wstring& array) {
    Texts texts;
    for (std::size_t i = 0; person.Sees().Find(Element(array, i)); ++i)
        if (ControlOf(person, Element(array, i)).Visible()) {
            EXPECT_EQ(texts.size(), i) << "a hidden row stands above a visible one";
            texts.push_back(person.Reads(Element(array, i)));
        }
    return texts;
}

inline bool IsVisible(const Person& person, const std::wstring& name) {
    return ControlOf(person, name).Visible();
}

inline bool IsEnabled(const Person& person, const std::wstring& name) {
    return ControlOf(person, name).Enabled();
}

/// The names of the controls that are enabled, and neither frame nor tab strip.
inline Texts EnabledControls(const Person& person) {
    Texts names;
    for (const auto& control : person.Sees().Controls())
        if (control->Enabled() && control->Kind() != QuorConversions::ControlKind::Frame &&
            control->Kind() != QuorConversions::ControlKind::TabStrip)
            names.push_back(control->Name());
    return names;
}

/// Where the Tab key goes, from the control that has the focus once around.
inline Texts TabOrder(Person& person) {
    Texts order;
    for (std::wstring at = person.Focused(); std::find(order.begin(), order.end(), at) == order.end();
         at = person.Focused()) {
        order.push_back(at);
        person.Tab();
    }
    return order;
}

/// The items that a list offers.
inline Texts Items(const Person& person, const std::wstring& name) {
    const auto& list = dynamic_cast<const QuorConversions::DropDownList&>(ControlOf(person, name));
    Texts items;
    for (std::int32_t i = 0; i < list.ListCount(); ++i)
        items.push_back(list.List(i));
    return items;
}

/// What is on the screen, without the list of what is not.
inline std::wstring OnScreen(const Person& person) {
    const std::wstring screen = person.Screen();
    return screen.substr(0, screen.find(L"hidden:"));
}

inline const wchar_t* const buttonsOnScreen = L"  <OK>\n  <Cancel>\n  <Help>\n  <Open>\n  <Save As>\n";

} // namespace Support
