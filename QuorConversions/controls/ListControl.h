#pragma once

#include "QuorConversions/Export.h"

#include <cstdint>
#include <string_view>

namespace QuorConversions {

/// What the Fill...Combo members need of a list: text items, each with a number.
class QUORCONVERSIONS_EXPORT ListControl {
public:
    ListControl() = default;
    ListControl(const ListControl&) = delete;
    ListControl& operator=(const ListControl&) = delete;
    virtual ~ListControl();

    /// Removes all items.
    virtual void Clear() = 0;
    /// Adds an item at the end.
    virtual void AddItem(std::wstring_view text) = 0;
    /// The index, from 0, of the item that was added last.
    [[nodiscard]] virtual std::int32_t NewIndex() const = 0;
    /// Sets the number of the item at `index`, from 0, which exists.
    virtual void SetItemData(std::int32_t index, std::int32_t data) = 0;
};

/// Adds an item with the number `data`.
QUORCONVERSIONS_EXPORT void AddItemWithData(ListControl& list, std::wstring_view text, std::int32_t data);

} // namespace QuorConversions
