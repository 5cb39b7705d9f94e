#include "screen/IdlePreparation.h"

#include "KnownPictures.h"
#include "KnownTexts.h"
#include "PicturePool.h"
#include "symbols/SymbolLibrary.h"

bool prepareWhileIdle() {
    return PicturePool::shared().prepare() || SymbolLibrary::shared().prepare() ||
           KnownTexts::shared().prepare() || KnownPictures::shared().prepare();
}
