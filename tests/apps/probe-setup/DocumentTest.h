#pragma once

#include "apps/probe-setup/ProbeDocument.h"
#include "tests/apps/probe-setup/HostFile.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A document on the file "host.ini" of a folder of the test's own.
class DocumentTest : public HostFileTest {
protected:
    void Open() { document.Open(folder.Name("host.ini")); }
    void Open(const std::string& text) {
        folder.Write("host.ini", text);
        Open();
    }
    [[nodiscard]] std::vector<std::wstring> Names() const {
        std::vector<std::wstring> names;
        for (std::size_t i = 0; i < document.Count(); ++i)
            names.push_back(document.Name(i));
        return names;
    }
    /// Gives a box of a probe's dialog another text, as a person would.
    void Edit(std::size_t probe, const wchar_t* box, const wchar_t* text) {
        screen->InDialog([=](QuorConversions::Scripted::Person& person) {
            person.Type(box, text);
            person.Click(L"OK");
        });
        EXPECT_TRUE(document.Edit(probe));
    }
    /// What refuses an action.
    template <class Action>
    std::optional<ProbeSetup::Failure> FailureOf(const Action& action) {
        try {
            action();
        } catch (const ProbeSetup::DocumentError& error) {
            return error.failure;
        }
        return std::nullopt;
    }

    std::shared_ptr<QuorConversions::Scripted::ScriptedPlatform> screen =
        std::make_shared<QuorConversions::Scripted::ScriptedPlatform>();
    ProbeSetup::ProbeDocument document{screen};
};
