#pragma once

#include "QuorConversions/controls/ListControl.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Support {

/// A list that keeps what the Fill...Combo members put into it.
class ListRecorder : public QuorConversions::ListControl {
public:
    using Item = std::pair<std::wstring, std::int32_t>;
    std::vector<Item> items;

    void Clear() override { items.clear(); }
    void AddItem(std::wstring_view text) override { items.emplace_back(text, 0); }
    [[nodiscard]] std::int32_t NewIndex() const override {
        return static_cast<std::int32_t>(items.size()) - 1;
    }
    void SetItemData(std::int32_t index, std::int32_t data) override {
        items.at(static_cast<std::size_t>(index)).second = data;
    }
};

} // namespace Support
