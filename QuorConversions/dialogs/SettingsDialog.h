#pragma once

#include "QuorConversions/controls/Dialog.h"
#include "QuorConversions/core/NumberFromPaste.h"
#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/core/detail/SettingsEditor.h"
#include "QuorConversions/dialogs/MissingKeys.h"
#include "QuorConversions/dialogs/PastedCells.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace QuorConversions {

/// What all settings dialogs share: the buttons, the cycle of loading, gathering and validating, the
/// behaviour of value boxes, the read-only rule, Open and Save As, Help, and the placement. A dialog edits
/// its settings object in place; nothing is copied and nothing rolled back.
class SettingsDialog : public Dialog, public SettingsEditor {
public:
    /// Shows the dialog modally. False only when the user left it by Cancel.
    bool Run() override;
    [[nodiscard]] bool Cancelled() const { return m_cancelled; }

protected:
    /// A value of the object and the box that shows it.
    struct Field {
        Label& label;
        TextBox& box;
        std::function<double()> get;
        std::function<void(double)> set;
        std::function<std::wstring()> format;
        PastedUnit unit = PastedUnit::None; ///< None where it has none, or is not known
    };
    /// A choice of the object, and the list that offers it.
    struct Choice {
        Label& label;
        DropDownList& list;
        std::function<void(ListControl&)> fill;
        std::function<std::int32_t()> get;
        std::function<void(std::int32_t)> set;
    };

    /// `settings` outlives the dialog.
    SettingsDialog(SettingsObject& settings, std::shared_ptr<Platform> platform, const wchar_t* name,
                   std::int32_t helpContext);

    // What a dialog says for itself. Each is called by the cycle; errors that they raise are reported by it.

    /// Constant texts; the settings object is not looked at.
    virtual void SetCaptions();
    virtual void LoadControls();
    /// Stores what the controls show. False when something could not be stored, of which the user has been
    /// told.
    [[nodiscard]] virtual bool GatherSettings() = 0;
    /// Checks the object, not the controls. False at the first failure, by way of Refuse.
    [[nodiscard]] virtual bool ValidateSettings() { return true; }
    /// The first activation, before the controls are loaded.
    virtual void PrepareControls() {}
    /// An item of a list was selected, or a tab.
    virtual void OnChoice(Control& /*control*/) {}

    /// Adds a label and a box in a row of their own. `unit` is that of the value, where it has one that is
    /// known.
    Field& AddField(std::wstring labelName, std::wstring boxName, std::function<double()> get,
                    std::function<void(double)> set, std::function<std::wstring()> format,
                    PastedUnit unit = PastedUnit::None);
    Field& AddField(Label& label, TextBox& box, std::function<double()> get, std::function<void(double)> set,
                    std::function<std::wstring()> format);
    /// The value in the format of its field.
    void ShowValue(const Field& field);
    /// Empties the box of a field, with all that is told of its text.
    void ClearText(const Field& field);
    /// The leading number of the text, or 0, stored in the object.
    void StoreValue(const Field& field) const;
    /// Adds a label and a list in a row of their own.
    [[nodiscard]] Choice MakeChoice(std::wstring labelName, std::wstring listName,
                                    std::function<void(ListControl&)> fill, std::function<std::int32_t()> get,
                                    std::function<void(std::int32_t)> set);
    /// Fills the list and selects what the object holds, which raises Click.
    void ShowChoice(const Choice& choice) const;
    /// Stores what is selected. False when nothing is.
    [[nodiscard]] static bool StoreChoice(const Choice& choice);
    /// Shows or hides the controls of a field.
    void SetVisible(const Field& field, bool visible) const;
    /// Whether OK stores what the box of the field shows.
    [[nodiscard]] virtual bool IsGathered(const Field& field) const { return field.box.Visible(); }
    /// Enables controls when the object may be edited.
    void AllowEditing(std::initializer_list<Control*> controls) const;

    /// Tells why the values are not taken and puts the focus where to mend it. Returns false.
    [[nodiscard]] bool Refuse(EStringId message, Control* focus);
    /// Shows the page that a control stands on, before it gets the focus.
    virtual void ShowPageOf(Control& /*control*/) {}

    [[nodiscard]] Frame& Settings() { return m_frame; }

    // What the events do.
    void OnActivate() override;
    void OnClick(Control& control) override;
    void OnGotFocus(Control& control) override;
    void OnLostFocus(Control& control) override;
    void OnKeyPress(TextBox& box, std::int16_t& keyAscii) override;
    void OnEdit(TextBox& box) override;
    void OnPaste(TextBox& box, const std::wstring& text) override;

private:
    enum OKCancelHelp : std::size_t { OK, Cancel, Help };
    enum OpenSaveAs : std::size_t { Open, SaveAs };

    /// What is told of the text in a box and is seen nowhere in it.
    struct Notes {
        MissingKeys keys;
        // Until the text is edited:
        std::wstring formatted; ///< what the format has done to it
        std::wstring pasted;    ///< what it was pasted as or from
        std::wstring refused;   ///< what was not pasted
    };

    void OnButton(const PushButton& button);
    /// Gathers, then validates.
    [[nodiscard]] bool Accept();
    void LoadAll(bool first);
    /// The field that a box belongs to; null for another control.
    [[nodiscard]] const Field* FieldOf(const Control& control) const;
    /// Tells what would be stored of the text of a box.
    void Advise(const Field& field) const;
    /// The same, quietly where the object refuses the row by now.
    void AdviseIfItCan(const Field& field) const;
    /// The same of all boxes, once the object has stored what they show.
    void AdviseOnStored();
    /// Puts the text of a box into the format of its field, where it is a number.
    void FormatText(const Field& field);
    /// Keeps what is told of the text of a box for when Undo brings that text back.
    void Remember(const TextBox& box);
    /// Drops all that was told of the texts of a box.
    void Forget(const TextBox& box);
    /// Tells why nothing was pasted.
    void RefusePaste(TextBox& box, std::wstring why);
    void PasteNumber(TextBox& box, std::wstring_view text);
    void PasteCells(TextBox& box, const PastedCells& cells);
    /// Puts a number into the place of the selection.
    void PutPasted(TextBox& box, const PastedNumber& pasted, std::wstring_view text);
    /// Whether the text itself says that the number is meant for another box.
    [[nodiscard]] bool IsOfAnother(const TextBox& box, const PastedNumber& pasted) const;
    void RestorePlacement();
    void StorePlacement() const;
    void ReportError(EStringId context) const;
    /// The text with a point for the user's decimal separator.
    [[nodiscard]] std::wstring PointText(const std::wstring& text) const;

    SettingsObject& m_settings;
    std::shared_ptr<Platform> m_platform;
    Frame& m_frame;
    std::vector<PushButton*> m_openSaveAs;
    std::vector<PushButton*> m_okCancelHelp;
    std::deque<Field> m_fields;
    std::map<const TextBox*, Notes> m_notes;
    std::map<const TextBox*, std::map<std::wstring, Notes>> m_earlier; ///< of texts that a box has had
    std::int16_t m_key = 0; ///< the last key, until it has changed a text
    bool m_cancelled = false;
    bool m_activated = false;
    bool m_loading = false;
};

} // namespace QuorConversions
