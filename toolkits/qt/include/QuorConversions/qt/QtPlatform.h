#pragma once

#include "QuorConversions/platform/Platform.h"
#include "QuorConversions/qt/Export.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class QWidget;

namespace QuorConversions::QtToolkit {

/// The platform of a host with Qt 6 Widgets: it makes one, when its QApplication exists, and hands it to the
/// objects that it creates. They and the platform go before the QApplication goes.
///
/// Mapped: a dialog is a QDialog drawn from the rows and columns of the model, in tab order, with access
/// keys, labels as buddies and accessible names; messages, with a Help button where there is help; file
/// dialogs, the system's own where it has one; help topics in a window of their own; the busy pointer; the
/// decimal separator of QLocale(), which is the system's as long as the host sets no other. Left out: texts,
/// checks and enable rules, which are the dialogs' own; the size of a window, which follows from what stands
/// in it; of the flags of a file dialog all but "must exist" and "ask before overwriting".
class QTTOOLKIT_EXPORT QtPlatform : public Platform {
public:
    /// Windows that belong to no other window belong to `parent`, which outlives the platform.
    explicit QtPlatform(QWidget* parent = nullptr);
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;
    ~QtPlatform() override;

    /// The number by which a window is handed to the library as an owner, as in SettingsObject::OpenFile: 1
    /// or more, the same for a window as long as it lives.
    [[nodiscard]] std::int32_t HandleOf(QWidget& window);
    /// The window of a number; null for 0, for a number that was never given, and for a window that is gone.
    [[nodiscard]] QWidget* WindowOf(std::int32_t handle) const;

    void RunDialog(Dialog& dialog, DialogInput& input) override;
    void ShowMessage(const MessageRequest& request) override;
    [[nodiscard]] std::optional<std::wstring> AskForFile(const FileRequest& request) override;
    /// `helpFile` is a help collection (.qhc) with pages under the context numbers as keywords. Command 1
    /// shows the page of `data` and returns 1. Without the file, or the page, a message says so; the result
    /// is 0 then, as for every other command.
    std::int32_t CallHelp(const std::wstring& helpFile, std::uint32_t command, std::int32_t data) override;
    [[nodiscard]] std::wstring DecimalSeparator() override;
    [[nodiscard]] EMousePointer MousePointer() const override;
    void SetMousePointer(EMousePointer shape) override;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace QuorConversions::QtToolkit
