#include "screen/IdlePreparation.h"

#include "PicturePool.h"
#include "SymbolLibrary.h"

bool prepareWhileIdle() {
    return PicturePool::shared().prepare() || SymbolLibrary::shared().prepare();
}
