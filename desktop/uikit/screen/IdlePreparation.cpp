#include "screen/IdlePreparation.h"

#include "PicturePool.h"
#include "symbols/SymbolLibrary.h"

bool prepareWhileIdle() {
    return PicturePool::shared().prepare() || SymbolLibrary::shared().prepare();
}
