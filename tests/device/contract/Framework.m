#import "LayoutStandIns.h"

#import <Foundation/NSDebug.h>
#import <objc/runtime.h>

// What the framework, or a page, asks cells that have it.
@interface NSObject (Rows)
- (id)initWithSpecifier:(id)specifier;
- (double)preferredHeightForWidth:(double)width;
- (id)loadImageNamed:(NSString *)name withRenderingMode:(NSInteger)mode;
@end

id newByName(const char *className) {
    return [objc_getClass(className) new];
}

id newWithFrame(const char *className, CGRect frame) {
    return [[objc_getClass(className) alloc] initWithFrame:frame];
}

id newWithCoder(const char *className) {
    NSCoder *coder = [[NSCoder new] autorelease];
    return [(UIView *)[objc_getClass(className) alloc] initWithCoder:coder];
}

id newCell(const char *className, long style, id reuseIdentifier, id specifier) {
    return [[objc_getClass(className) alloc] initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
}

id newWithSpecifier(const char *className, id specifier) {
    return [[objc_getClass(className) alloc] initWithSpecifier:specifier];
}

double preferredHeight(id view, double width) {
    return [view preferredHeightForWidth:width];
}

id loadedImage(id cell, id name, long renderingMode) {
    return [cell loadImageNamed:name withRenderingMode:renderingMode];
}

id allocatedByName(const char *className) {
    return [objc_getClass(className) alloc];
}

id accessoryOf(StandInCell *cell) {
    return [cell accessory];
}

id viewOf(UIViewController *controller) {
    return [controller view];
}

id specifiersOf(PSListController *page) {
    return [page specifiers];
}

id keptSpecifiersOf(PSListController *page) {
    return [page keptSpecifiers];
}

id readValueOf(PSListController *page, PSSpecifier *specifier) {
    return [page readPreferenceValue:specifier];
}

void setValueOf(PSListController *page, id value, PSSpecifier *specifier) {
    [page setPreferenceValue:value specifier:specifier];
}

double heightOfRow(PSListController *page, long row) {
    return [page tableView:[page table] heightForRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:0]];
}

const char *bundlePathOf(PSListController *page) {
    return [[[page bundle] bundlePath] UTF8String];
}

id titleViewOf(UIViewController *controller) {
    return controller->navigationItem->titleView;
}

id menuActionOf(UIViewController *controller, unsigned index) {
    UIBarButtonItem *item = [controller->navigationItem->rightBarButtonItems objectAtIndex:0];
    return [item->menu->children objectAtIndex:index];
}

static UINavigationItem *sheetItemOf(UIViewController *controller) {
    for (UIView *subview in controller->presented->view->subviews) {
        if ([subview isKindOfClass:[UINavigationBar class]])
            return [((UINavigationBar *)subview)->items lastObject];
    }
    return nil;
}

id leftButtonOf(UIViewController *controller) {
    UINavigationItem *item = sheetItemOf(controller);
    return item ? [item->leftBarButtonItems lastObject] : nil;
}

id rightButtonOf(UIViewController *controller) {
    UINavigationItem *item = sheetItemOf(controller);
    return item ? [item->rightBarButtonItems lastObject] : nil;
}

id listItemOf(UIViewController *controller, unsigned index) {
    return [((OBWelcomeController *)controller->presented)->list->subviews objectAtIndex:index];
}

id recognizerOf(UIView *view) {
    return [view->recognizers lastObject];
}

id presentedBy(UIViewController *controller) {
    return controller->presented;
}

void choose(UIAction *action) {
    callBlockWithObject(action->handler, action);
}

void answerAlertOf(UIViewController *controller, unsigned index) {
    UIAlertController *alert = (UIAlertController *)[[controller->presented retain] autorelease];
    UIAlertAction *action = [alert->actions objectAtIndex:index];
    DESTROY(controller->presented);
    if (action->handler)
        callBlockWithObject(action->handler, action);
}

static UITouch *touchAt(double x) {
    UITouch *touch = [[UITouch new] autorelease];
    touch->place.x = x;
    return touch;
}

BOOL touchDown(UIControl *control, double x) {
    return [control beginTrackingWithTouch:touchAt(x) withEvent:[[UIEvent new] autorelease]];
}

BOOL touchMoved(UIControl *control, double x) {
    return [control continueTrackingWithTouch:touchAt(x) withEvent:nil];
}

void touchUp(UIControl *control, double x) {
    [control endTrackingWithTouch:touchAt(x) withEvent:nil];
}

void touchCancelled(UIControl *control) {
    [control cancelTrackingWithEvent:nil];
}

void setTracking(UIControl *control, BOOL tracking) {
    control->tracking = tracking;
}

void layOut(UIView *view) {
    [view layoutSubviews];
}

id perform(id receiver, const char *selector, id argument) {
    return [receiver performSelector:sel_registerName(selector) withObject:argument];
}

id performWithTwo(id receiver, const char *selector, id first, id second) {
    return [receiver performSelector:sel_registerName(selector) withObject:first withObject:second];
}

id performWithMore(id receiver, const char *selector, id first, id second, id third, long number) {
    typedef id (*Method)(id, SEL, id, id, id, long);
    SEL name = sel_registerName(selector);
    return ((Method)[receiver methodForSelector:name])(receiver, name, first, second, third, number);
}

long performMixed(id receiver, const char *selector, double first, id second, long third, double fourth) {
    typedef long (*Method)(id, SEL, double, id, long, double);
    SEL name = sel_registerName(selector);
    return ((Method)(void (*)(void))[receiver methodForSelector:name])(receiver, name, first, second, third, fourth);
}

static NSInvocation *invocationWithTwo(id receiver, const char *selector, void *argument, void *second) {
    SEL name = sel_registerName(selector);
    NSMethodSignature *signature = [receiver methodSignatureForSelector:name];
    NSInvocation *invocation = [NSInvocation invocationWithMethodSignature:signature];
    [invocation setSelector:name];
    [invocation setTarget:receiver];
    if ([signature numberOfArguments] > 2)
        [invocation setArgument:argument atIndex:2];
    if ([signature numberOfArguments] > 3)
        [invocation setArgument:second atIndex:3];
    [invocation invoke];
    return invocation;
}

static NSInvocation *invocationFor(id receiver, const char *selector, void *argument) {
    void *nothing = NULL;
    return invocationWithTwo(receiver, selector, argument, &nothing);
}

long invokeForInteger(id receiver, const char *selector, id argument) {
    long answer = 0;
    [invocationFor(receiver, selector, &argument) getReturnValue:&answer];
    return answer;
}

void invokeWithDouble(id receiver, const char *selector, double argument) {
    invocationFor(receiver, selector, &argument);
}

void invokeWithBooleans(id receiver, const char *selector, BOOL first, BOOL second) {
    invocationWithTwo(receiver, selector, &first, &second);
}

BOOL invokeForBoolean(id receiver, const char *selector) {
    id nothing = nil;
    BOOL answer = NO;
    [invocationFor(receiver, selector, &nothing) getReturnValue:&answer];
    return answer;
}

const char *typesOf(const char *className, const char *selector) {
    Class class = objc_getClass(className);
    BOOL isClassMethod = selector[0] == '+';
    Method method = isClassMethod ? class_getClassMethod(class, sel_registerName(selector + 1))
                                  : class_getInstanceMethod(class, sel_registerName(selector));
    return method ? method_getTypeEncoding(method) : NULL;
}

const char **selectorsOf(const char *className) {
    unsigned count = 0;
    Method *methods = class_copyMethodList(objc_getClass(className), &count);
    NSMutableData *names = [NSMutableData dataWithLength:(count + 1) * sizeof(char *)];
    for (unsigned i = 0; i < count; ++i)
        ((const char **)[names mutableBytes])[i] = sel_getName(method_getName(methods[i]));
    free(methods);
    return [names mutableBytes];
}

id number(double value) {
    return [NSNumber numberWithDouble:value];
}

id text(const char *utf8) {
    return [NSString stringWithUTF8String:utf8];
}

id emptySpecifier(void) {
    return [[PSSpecifier new] autorelease];
}

long aliveOf(const char *className) {
    return GSDebugAllocationCount(objc_getClass(className));
}

__attribute__((constructor)) static void countObjects(void) {
    GSDebugAllocationActive(YES);
}
