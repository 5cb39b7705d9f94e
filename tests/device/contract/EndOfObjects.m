// The root class tells when an object's end begins, with the release of its last owner, and when it is all but over.
#import <Foundation/Foundation.h>

#import <objc/runtime.h>

BOOL takeOwnerAway(id object, BOOL (*isLast)(id), BOOL (*takeAway)(id));
void releaseAssociations(id owner);

static BOOL hasOneOwner(id object) {
    return NSExtraRefCount(object) == 0;
}

static id endObject(id self, SEL selector, ...) {
    (void)selector;
    releaseAssociations(self);
    NSDeallocateObject(self);
    return nil;
}

@implementation NSObject (EndOfObjects)
- (oneway void)release {
    if (takeOwnerAway(self, hasOneOwner, NSDecrementExtraRefCountWasZero))
        [self dealloc];
}

+ (void)load {
    class_replaceMethod(self, @selector(dealloc), endObject, "v@:");
}
@end
