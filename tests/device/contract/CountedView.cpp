#include "CountedView.h"

#include "ObjectiveC/Class.h"
#include "ObjectiveC/Method.h"

namespace {

const Class countedClass = Class::define<CountedView, UIView>(
    "CountedView",
    {method<"layoutCount", &CountedView::layoutCount>(), method<"setScale:", &CountedView::setScale>(),
     method<"scale", &CountedView::scale>(), method<"setPair:animated:", &CountedView::setPair>(),
     method<"takeReal:text:flag:real:", &CountedView::takeMixed>(), method<"echo:", &CountedView::echo>(),
     method<"echoValue:", &CountedView::echoValue>(), method<"twice:", &CountedView::twice>(),
     method<"fresh", &CountedView::fresh>(), method<"watch:", &CountedView::watch>()});
const Class derivedClass = Class::define<DerivedView, CountedView>("DerivedView");

} // namespace
