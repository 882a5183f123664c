#pragma once

#include "QuorConversions/dialogs/SettingsDialog.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace QuorConversions {

/// A dialog with a grid of points: a temperature and a second value in each row, with their units.
template <class SettingsClass>
class PointDialog : public SettingsDialog {
protected:
    /// What the second value is called, and how the object holds it.
    struct SecondValue {
        const wchar_t* headingName;
        const wchar_t* boxName;
        const wchar_t* unitsName;
        EStringId heading;
        double (SettingsClass::*get)(std::int32_t) const;
        std::function<void(SettingsClass&, std::int32_t, double)> set;
        const std::wstring& (SettingsClass::*scale)() const;
        const std::wstring& (SettingsClass::*format)() const;
    };
    struct PointRow {
        Label& point;
        Field& temperature;
        Label& tempUnits;
        Field& second;
        Label& secondUnits;
    };

    PointDialog(SettingsClass& settings, std::shared_ptr<Platform> platform, const wchar_t* name,
                std::int32_t helpContext, SecondValue second)
        : SettingsDialog(settings, std::move(platform), name, helpContext),
          m_object(settings),
          m_second(std::move(second)) {}

    [[nodiscard]] SettingsClass& Object() const { return m_object; }
    [[nodiscard]] const std::vector<PointRow>& Rows() const { return m_rows; }

    void AddPoints(std::size_t count) {
        m_temperatureHeading = &Add<Label>(L"lblTemperature");
        m_secondHeading = &Add<Label>(m_second.headingName);
        Settings().AddRow({nullptr, m_temperatureHeading, nullptr, m_secondHeading, nullptr});
        for (std::size_t row = 0; row < count; ++row)
            AddPoint(row);
    }

    void SetCaptions() override {
        m_temperatureHeading->SetCaption(TableText(IDS_TEMPERATURE));
        m_secondHeading->SetCaption(TableText(m_second.heading));
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            m_rows[row].point.SetCaption(std::to_wstring(row + 1));
        SettingsDialog::SetCaptions();
    }
    void LoadControls() override {
        AllowEditing({m_temperatureHeading, m_secondHeading});
        for (const PointRow& row : m_rows) {
            ShowValue(row.temperature);
            row.tempUnits.SetCaption(m_object.TempScale());
            ShowValue(row.second);
            row.secondUnits.SetCaption((m_object.*m_second.scale)());
            AllowEditing(
                {&row.point, &row.temperature.box, &row.tempUnits, &row.second.box, &row.secondUnits});
        }
        SettingsDialog::LoadControls();
    }
    /// Stores the rows that the object has points for. A row that could not be typed in says nothing, where a
    /// host has added the point meanwhile.
    void StorePoints() {
        for (std::size_t row = 0; row < m_rows.size() && HasPoint(row); ++row)
            if (m_rows[row].temperature.box.IsUsable()) {
                StoreValue(m_rows[row].temperature);
                StoreValue(m_rows[row].second);
            }
    }
    [[nodiscard]] bool HasPoint(std::size_t row) const {
        return static_cast<std::int32_t>(row) < m_object.NumPoints();
    }

private:
    void AddPoint(std::size_t row) {
        const auto index = static_cast<std::int32_t>(row);
        auto& point = Add<Label>(L"lblPoint", row);
        auto& temperature = Add<TextBox>(L"txtTemperature", row);
        auto& tempUnits = Add<Label>(L"lblTempUnits", row);
        auto& second = Add<TextBox>(m_second.boxName, row);
        auto& secondUnits = Add<Label>(m_second.unitsName, row);
        Settings().AddRow({&point, &temperature, &tempUnits, &second, &secondUnits});
        // A row without a point shows what a new point would hold.
        Field& first = AddField(
            point, temperature,
            [this, row, index] { return HasPoint(row) ? m_object.Temperatures(index) : 0.0; },
            [this, index](double value) { m_object.SetTemperatures(index, value); },
            [this] { return m_object.TempFormat(); });
        Field& other = AddField(
            point, second,
            [this, row, index] { return HasPoint(row) ? (m_object.*m_second.get)(index) : 0.0; },
            [this, index](double value) { m_second.set(m_object, index, value); },
            [this] { return (m_object.*m_second.format)(); });
        m_rows.push_back({point, first, tempUnits, other, secondUnits});
    }

    SettingsClass& m_object;
    SecondValue m_second;
    Label* m_temperatureHeading = nullptr;
    Label* m_secondHeading = nullptr;
    std::vector<PointRow> m_rows;
};

} // namespace QuorConversions
