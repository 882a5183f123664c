#include "QuorConversions/controls/ListControl.h"

namespace QuorConversions {

ListControl::~ListControl() = default;

void AddItemWithData(ListControl& list, std::wstring_view text, std::int32_t data) {
    list.AddItem(text);
    list.SetItemData(list.NewIndex(), data);
}

} // namespace QuorConversions
