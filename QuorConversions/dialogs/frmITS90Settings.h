#pragma once

#include "QuorConversions/dialogs/SettingsDialog.h"
#include "QuorConversions/rtd/CQuorITS90.h"

#include <vector>

namespace QuorConversions {

/// Edits an ITS-90 calibration: RTPW, which must not be 0, and on a page each the low and the high range, of
/// which one must be selected. The number and the labels of the coefficient rows follow the selected range.
class frmITS90Settings final : public SettingsDialog {
public:
    frmITS90Settings(CQuorITS90& settings, std::shared_ptr<Platform> platform);

private:
    struct Page {
        CQuorITS90Range& range;
        Frame& frame;
        Choice choice;
        std::vector<Field*> rows;
    };

    void SetCaptions() override;
    void PrepareControls() override;
    void LoadControls() override;
    bool GatherSettings() override;
    bool ValidateSettings() override;
    void OnChoice(Control& control) override;
    void ShowPageOf(Control& control) override;
    [[nodiscard]] bool IsGathered(const Field& field) const override;

    [[nodiscard]] Page MakePage(CQuorITS90Range& range, std::size_t number, const std::wstring& side,
                                std::size_t rows);
    /// Shows the page of the selected tab and hides the other.
    void ShowSelectedTab();
    /// Takes out the tab of a side that can have no range.
    void ConfigureRangeTabs();
    void SetupLowRangeRows(std::int32_t range, bool showCoefRange);
    void SetupHighRangeRows(std::int32_t range, bool showCoefRange);
    /// Shows and fills the rows of a range.
    void SetupRows(const Page& page, std::int32_t range);
    void SetupRows(const Page& page);
    void UpdateRange5Note(std::int32_t lowRange);
    void LoadPage(const Page& page);
    void StorePage(const Page& page);

    CQuorITS90& m_object;
    Field& m_rtpw;
    TabStrip& m_tabs;
    Page m_low;
    Page m_high;
    Label& m_range5Note;
};

} // namespace QuorConversions
