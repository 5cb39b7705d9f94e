#include "Foundation/NSBundle.h"

#include "LoadedBundles.h"

Ref<NSBundle> NSBundle::bundleForClass(const Class& stated) {
    return LoadedBundles::shared().bundleOf(stated);
}
