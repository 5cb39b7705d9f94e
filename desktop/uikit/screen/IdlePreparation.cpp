#include "screen/IdlePreparation.h"

#include "KnownPictures.h"
#include "PicturePool.h"
#include "symbols/SymbolLibrary.h"

bool prepareWhileIdle() {
    return PicturePool::shared().prepare() || SymbolLibrary::shared().prepare() ||
           KnownPictures::shared().prepare();
}
