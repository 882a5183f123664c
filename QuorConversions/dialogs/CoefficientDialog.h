#pragma once

#include "QuorConversions/dialogs/SettingsDialog.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace QuorConversions {

/// A dialog whose settings are essentially a list of coefficients: one row each, as many as the object has.
/// Rows past the object's count are hidden, and neither gathered nor validated; coefficients past the rows
/// are left alone.
template <class SettingsClass>
class CoefficientDialog : public SettingsDialog {
protected:
    CoefficientDialog(SettingsClass& settings, std::shared_ptr<Platform> platform, const wchar_t* name,
                      std::int32_t helpContext)
        : SettingsDialog(settings, std::move(platform), name, helpContext), m_object(settings) {}

    [[nodiscard]] SettingsClass& Object() const { return m_object; }

    /// Adds a list that offers a choice, above the rows.
    void AddChoice(const wchar_t* labelName, const wchar_t* listName, std::function<void(ListControl&)> fill,
                   std::function<std::int32_t()> get, std::function<void(std::int32_t)> set) {
        m_choice.emplace(MakeChoice(labelName, listName, std::move(fill), std::move(get), std::move(set)));
    }
    [[nodiscard]] const Choice& ChoiceRow() const { return *m_choice; }

    void AddRows(std::size_t count) {
        const auto labels = AddArray<Label>(L"lblCoefficients", count);
        const auto boxes = AddArray<TextBox>(L"txtCoefficients", count);
        for (std::size_t row = 0; row < count; ++row) {
            const auto index = static_cast<std::int32_t>(row);
            Settings().AddRow({labels[row], boxes[row]});
            m_rows.push_back(&AddField(
                *labels[row], *boxes[row], [this, index] { return m_object.Coefficients(index); },
                [this, index](double value) { m_object.SetCoefficients(index, value); },
                [this, index] { return FormatOf(index); }));
        }
    }
    [[nodiscard]] const std::vector<Field*>& Rows() const { return m_rows; }
    /// Labels the rows from `first` on: each text and ":".
    void LabelRows(std::initializer_list<EStringId> names, std::size_t first = 0) {
        for (const EStringId name : names)
            m_rows[first++]->label.SetCaption(TableText(name) + L":");
    }
    /// The units of the first rows, as far as they are known.
    void SetUnits(std::initializer_list<PastedUnit> units) {
        std::size_t row = 0;
        for (const PastedUnit unit : units)
            m_rows[row++]->unit = unit;
    }
    /// Labels all rows: prefix, index and ":".
    void NumberRows(const std::wstring& prefix) {
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            m_rows[row]->label.SetCaption(prefix + std::to_wstring(row) + L":");
    }

    [[nodiscard]] std::size_t RowsInUse() const {
        return std::min(m_rows.size(),
                        static_cast<std::size_t>(std::max<std::int16_t>(m_object.NumCoefficients(), 0)));
    }

    void LoadControls() override {
        if (m_choice)
            ShowChoice(*m_choice);
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            SetVisible(*m_rows[row], row < RowsInUse());
            AllowEditing({&m_rows[row]->label, &m_rows[row]->box});
        }
        SettingsDialog::LoadControls();
        for (std::size_t row = 0; row < RowsInUse(); ++row)
            ShowValue(*m_rows[row]);
    }
    [[nodiscard]] bool GatherSettings() override {
        for (std::size_t row = 0; row < RowsInUse(); ++row)
            if (m_rows[row]->box.Visible()) // hidden where a host has added the coefficient meanwhile
                StoreValue(*m_rows[row]);
        return true;
    }
    /// The first coefficient of 0 among the first `count` in use is refused.
    [[nodiscard]] bool RequireNonZero(std::size_t count) {
        for (std::size_t row = 0; row < std::min(count, RowsInUse()); ++row)
            if (m_rows[row]->get() == 0.0)
                return Refuse(IDS_ENTER_COEFFICIENTS, &m_rows[row]->box);
        return true;
    }

private:
    [[nodiscard]] std::wstring FormatOf(std::int32_t index) const {
        if constexpr (requires { m_object.ValueFormat(index); })
            return m_object.ValueFormat(index);
        else
            return m_object.ValueFormat();
    }

    SettingsClass& m_object;
    std::vector<Field*> m_rows;
    std::optional<Choice> m_choice;
};

} // namespace QuorConversions
