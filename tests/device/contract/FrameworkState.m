// What the tests ask the frameworks' objects, and set them to.
#import "LayoutStandIns.h"

#import <objc/runtime.h>

@interface UIView (State)
- (CGRect)frame;
- (CGRect)bounds;
- (void)setFrame:(CGRect)frame;
@end

@interface UIControl (State)
- (void)sendActionsForControlEvents:(NSUInteger)events;
@end

@interface UIViewController (State)
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void *)completion;
@end

@interface UINavigationController (State)
- (void)pushViewController:(UIViewController *)page animated:(BOOL)animated;
@end

@interface OpeningPage : UIViewController {
@public
    NSMutableArray *opened;
}
@end

@implementation OpeningPage
- (void)openController:(id)sender {
    if (opened == nil)
        opened = [NSMutableArray new];
    [opened addObject:sender];
}
- (void)dealloc {
    [opened release];
    [super dealloc];
}
@end

id openerOf(OpeningPage *page, unsigned index) {
    return index < [page->opened count] ? [page->opened objectAtIndex:index] : nil;
}

void forgetOpenersOf(OpeningPage *page) {
    [page->opened removeAllObjects];
}

const char *descriptionOf(id object) {
    return [describe(object) UTF8String];
}

id boolean(BOOL value) {
    return [NSNumber numberWithBool:value];
}

id wholeNumber(long long value) {
    return [NSNumber numberWithLongLong:value];
}

id largeNumber(unsigned long long value) {
    return [NSNumber numberWithUnsignedLongLong:value];
}

id listOf(id first, id second) {
    return [NSArray arrayWithObjects:first, second, nil];
}

void readFrame(UIView *view, CGRect *frame) {
    *frame = [view frame];
}

void readBounds(UIView *view, CGRect *bounds) {
    *bounds = [view bounds];
}

void setFrameOf(UIView *view, CGRect frame) {
    [view setFrame:frame];
}

unsigned subviewCountOf(UIView *view) {
    return (unsigned)[view->subviews count];
}

id subviewOf(UIView *view, unsigned index) {
    return index < [view->subviews count] ? [view->subviews objectAtIndex:index] : nil;
}

void sendActions(UIControl *control, unsigned long events) {
    [control sendActionsForControlEvents:events];
}

BOOL answersTo(id receiver, const char *selector) {
    return [receiver respondsToSelector:sel_registerName(selector)];
}

unsigned countOfArray(NSArray *array) {
    return (unsigned)[array count];
}

id elementOf(NSArray *array, unsigned index) {
    return [array objectAtIndex:index];
}

void dismissPresented(UIViewController *controller) {
    [controller dismissViewControllerAnimated:NO completion:NULL];
}

void showPage(UINavigationController *navigation, UIViewController *page) {
    [navigation pushViewController:page animated:NO];
}

id fieldPresentedBy(UIViewController *controller) {
    for (UIView *subview in controller->presented->view->subviews) {
        if ([subview isKindOfClass:[UITextField class]])
            return subview;
    }
    return nil;
}

const char *temporaryFolder(void) {
    return [NSTemporaryDirectory() UTF8String];
}
