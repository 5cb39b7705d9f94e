#include "SpecifierViews.h"

#include "Foundation/NSLog.h"
#include "ObjectiveC/Class.h"
#include "Preferences/PSSwitchTableCell.h"
#include "cells/PSEditableTableCell.h"
#include "cells/PSHeaderFooterView.h"
#include "cells/PSSegmentTableCell.h"
#include "cells/PSSliderTableCell.h"
#include "cells/PSSpinnerTableCell.h"
#include "cells/PSTableCellPeer.h"

namespace {

constexpr auto captionReuseIdentifier = "Cell";

template <class T>
Ref<T> allocateNamed(const DesktopSpecifier& specifier, std::string_view key) {
    const auto name = specifier.textForKey(key);
    if (name.empty())
        return nullptr;
    const auto* const named = NSClassFromString(name);
    auto object = named != nullptr ? dynamicCast<T>(named->allocate()) : nullptr;
    if (!object)
        NSLog("Row %@: '%@' names %@, which is no such class.", specifier.identifier(), key, name);
    return object;
}

Ref<PSTableCell> allocateForKind(SpecifierKind kind) {
    switch (kind) {
    case SpecifierKind::Switch:
        return adopt(new PSSwitchTableCell);
    case SpecifierKind::Slider:
        return adopt(new PSSliderTableCell);
    case SpecifierKind::Segment:
        return adopt(new PSSegmentTableCell);
    case SpecifierKind::EditText:
    case SpecifierKind::EditTextView:
    case SpecifierKind::SecureEditText:
        return adopt(new PSEditableTableCell);
    case SpecifierKind::Spinner:
        return adopt(new PSSpinnerTableCell);
    default:
        return adopt(new PSTableCell);
    }
}

bool initCaptionView(UIView& view, DesktopSpecifier& group) {
    if (const auto isReady = PSHeaderFooterView::init(view, group))
        return *isReady;
    if (auto* const cell = dynamic_cast<PSTableCell*>(&view))
        return cell->initWithStyle(UITableViewCellStyle::Default, captionReuseIdentifier, group);
    return view.init();
}

} // namespace

Ref<PSTableCell> makeCellFor(DesktopSpecifier& specifier, const std::string& reuseIdentifier) {
    const auto style = PSTableCellPeer::styleFor(specifier);
    if (auto cell = allocateNamed<PSTableCell>(specifier, "cellClass");
        cell && cell->initWithStyle(style, {}, specifier))
        return cell;
    auto cell = allocateForKind(specifier.kind());
    return cell->initWithStyle(style, reuseIdentifier, specifier) ? cell : nullptr;
}

Ref<UIView> makeCaptionViewFor(DesktopSpecifier& group, std::string_view key) {
    auto view = allocateNamed<UIView>(group, key);
    return view && initCaptionView(*view, group) ? view : nullptr;
}
