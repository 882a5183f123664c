#include "QuorConversions/controls/ListControl.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace {

/// A list that sorts its items, as a host's may.
class SortedList : public QuorConversions::ListControl {
public:
    std::vector<std::pair<std::wstring, std::int32_t>> items;

    void Clear() override { items.clear(); }
    void AddItem(std::wstring_view text) override {
        const std::pair item{std::wstring(text), 0};
        const auto place = items.insert(std::upper_bound(items.begin(), items.end(), item), item);
        m_newest = place - items.begin();
    }
    std::int32_t NewIndex() const override { return static_cast<std::int32_t>(m_newest); }
    void SetItemData(std::int32_t index, std::int32_t data) override {
        items.at(static_cast<std::size_t>(index)).second = data;
    }

private:
    std::ptrdiff_t m_newest = -1;
};

} // namespace

TEST(ListControlTest, GivesTheDataToTheItemThatWasAddedWhereverTheListPutsIt) {
    SortedList list;
    AddItemWithData(list, L"Range 2", 2);
    AddItemWithData(list, L"<none>", -1);
    AddItemWithData(list, L"Range 1", 1);
    EXPECT_EQ(list.items, (std::vector<std::pair<std::wstring, std::int32_t>>{
                              {L"<none>", -1}, {L"Range 1", 1}, {L"Range 2", 2}}));
}
