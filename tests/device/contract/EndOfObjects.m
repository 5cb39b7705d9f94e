// The root class tells when an object's end begins, with the release of its last owner, when it is all but over, and when
// it is over.
#import <Foundation/Foundation.h>

#import <objc/runtime.h>

BOOL takeOwnerAway(id object, BOOL (*isLast)(id), BOOL (*takeAway)(id));
void releaseAssociations(id owner);
void forgetEnd(const void* object);

static BOOL hasOneOwner(id object) {
    return NSExtraRefCount(object) == 0;
}

static id endObject(id self, SEL selector, ...) {
    (void)selector;
    releaseAssociations(self);
    NSDeallocateObject(self);
    return nil;
}

static id releaseObject(id self, SEL selector, ...) {
    (void)selector;
    if (takeOwnerAway(self, hasOneOwner, NSDecrementExtraRefCountWasZero)) {
        const void* ended = self;
        [self dealloc];
        forgetEnd(ended);
    }
    return nil;
}

@implementation NSObject (EndOfObjects)
+ (void)load {
    class_replaceMethod(self, @selector(dealloc), endObject, "v@:");
    class_replaceMethod(self, @selector(release), releaseObject, "Vv@:");
}
@end
