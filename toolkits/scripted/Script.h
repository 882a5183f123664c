#pragma once

#include "toolkits/scripted/ScriptedPlatform.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace QuorConversions::Scripted {

/// A line of a script that is no command.
struct ScriptError : std::runtime_error {
    ScriptError(std::size_t lineNumber, const std::wstring& what);
    std::size_t line;
    std::wstring text; ///< with the number of the line
};

/// What a person does in one dialog, as text, one command a line:
///
///     type LABEL TEXT      go to a box and type over it        type R0 100.0123
///     paste TEXT into LABEL   go to a box and paste over it    paste -2.35 x 10^-4 into A
///                             with \t and \n for tabs and line ends, \\ for a backslash
///     choose LABEL ITEM    choose an item of a list            choose Type K
///     page TAB             turn to a page                      page High Range
///     click BUTTON         click a button                      click OK
///     key TEXT             type where the focus is             key 1e-3
///     enter, tab, backtab, escape, help, close
///     file PATH            the next file dialog gets this path
///     nofile               the next file dialog is cancelled
///     expect TEXT          the next message says this
///     expect advice TEXT   a box is marked with this advice now
///     show                 print the dialog
///
/// Labels are what Person knows them by. Blank lines and lines that begin with "#" mean nothing.
class Script {
public:
    /// Raises ScriptError for a command that is unknown or lacks its argument. Lines are counted behind the
    /// first `ownLines`, which the caller has put in front.
    explicit Script(std::wstring_view text, std::size_t ownLines = 0);

    /// Plays the script in the next dialog that `platform` shows. What `show` prints goes to `print`. What
    /// the person cannot do ends the script; it, and messages that were not expected, are complaints of the
    /// platform, with the number of the line; so are, at the end, messages and file dialogs that were
    /// announced and did not come, and a dialog that is still open. Advice that was seen and not expected is
    /// ScriptedPlatform::UnexpectedAdvice: who stores what was accepted looks at it first.
    void PlayOn(ScriptedPlatform& platform, std::function<void(const std::wstring&)> print) const;

private:
    struct Line {
        std::size_t number;
        std::wstring verb;
        std::wstring rest;
        [[nodiscard]] std::optional<std::wstring> AnnouncedAdvice() const;
    };
    struct Verb;
    [[nodiscard]] static const Verb* FindVerb(const std::wstring& name);

    std::vector<Line> m_lines;
};

} // namespace QuorConversions::Scripted
