#pragma once

#include <memory>

namespace QuorConversions {

class Platform;
class SettingsObject;

/// The dialog of one settings object, as the object sees it.
class SettingsEditor {
public:
    SettingsEditor() = default;
    SettingsEditor(const SettingsEditor&) = delete;
    SettingsEditor& operator=(const SettingsEditor&) = delete;
    virtual ~SettingsEditor() = default;

    /// Shows the dialog modally; it edits the object in place. False when the user cancelled.
    virtual bool Run() = 0;
};

/// The dialog that belongs to the class of `settings`; null when there is none. Defined with the table of
/// dialogs, so that a settings class knows no dialog.
[[nodiscard]] std::unique_ptr<SettingsEditor> CreateEditor(SettingsObject& settings,
                                                           const std::shared_ptr<Platform>& platform);

} // namespace QuorConversions
