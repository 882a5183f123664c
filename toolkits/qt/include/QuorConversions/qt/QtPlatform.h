#pragma once

#include "QuorConversions/platform/Platform.h"
#include "QuorConversions/qt/Export.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class QWidget;

namespace QuorConversions::QtToolkit {

/// The platform of a host with Qt 6 Widgets, which creates one after its QApplication and passes it to the
/// objects that it creates. They and the platform must be destroyed before the QApplication.
///
/// It provides dialogs as QDialogs with the rows and columns of the model, in tab order, with access keys,
/// labels as buddies and accessible names; messages, with a Help button if there is help; file dialogs, the
/// system's own if it has any; help topics in a window of their own; the busy pointer; and the decimal
/// separator of QLocale(), which is the system's unless the host sets another. Texts, checks and enable rules
/// are the dialogs' own; the size of a window follows from its contents; of the flags of a file dialog only
/// "must exist" and "ask before overwriting" are used.
class QTTOOLKIT_EXPORT QtPlatform : public Platform {
public:
    /// `parent`, which must outlive the platform, owns the windows that have no other owner.
    explicit QtPlatform(QWidget* parent = nullptr);
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;
    ~QtPlatform() override;

    /// The number that represents a window as an owner in the library, as in SettingsObject::OpenFile: 1 or
    /// more, and the same for the lifetime of the window.
    [[nodiscard]] std::int32_t HandleOf(QWidget& window);
    /// The window of a number; null for 0, for a number that was never returned, and for a window that was
    /// destroyed.
    [[nodiscard]] QWidget* WindowOf(std::int32_t handle) const;

    void RunDialog(Dialog& dialog, DialogInput& input) override;
    void ShowMessage(const MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
    /// `helpFile` is a help collection (.qhc) with the context numbers as keywords of its pages. Command 1
    /// shows the page for `data` and returns 1. If there is no such file or page, a message says so and the
    /// result is 0, as for every other command.
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    [[nodiscard]] std::wstring DecimalSeparator() override;
    [[nodiscard]] EMousePointer MousePointer() const override;
    void SetMousePointer(EMousePointer shape) override;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace QuorConversions::QtToolkit
