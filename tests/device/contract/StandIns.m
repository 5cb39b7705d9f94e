#import "StandIns.h"

#import "BlockCalls.h"
#import "Journal.h"

#import <objc/runtime.h>

void *_Block_copy(const void *block);
void _Block_release(const void *block);

NSString *describe(id object) {
    if (object == nil)
        return @"nil";
    if ([object isKindOfClass:[NSString class]])
        return [NSString stringWithFormat:@"\"%@\"", object];
    if ([object isKindOfClass:[NSNumber class]] || [object isKindOfClass:[UIColor class]] ||
        [object isKindOfClass:[UIImage class]] || [object isKindOfClass:[NSURL class]])
        return [object description];
    if ([object isKindOfClass:[NSArray class]]) {
        NSMutableArray *parts = [NSMutableArray array];
        for (id element in object)
            [parts addObject:describe(element)];
        return [NSString stringWithFormat:@"[%@]", [parts componentsJoinedByString:@", "]];
    }
    return NSStringFromClass([object class]);
}

NSString *describeRect(CGRect rect) {
    return [NSString stringWithFormat:@"{{%g, %g}, {%g, %g}}", rect.origin.x, rect.origin.y, rect.size.width,
                                      rect.size.height];
}

void record(id receiver, SEL selector, NSString *format, ...) {
    NSAutoreleasePool *pool = [NSAutoreleasePool new];
    va_list list;
    va_start(list, format);
    NSString *arguments = [[[NSString alloc] initWithFormat:format arguments:list] autorelease];
    va_end(list);
    Class class = object_getClass(receiver);
    NSString *line = [NSString stringWithFormat:@"%@[%s %s]%@%@", class_isMetaClass(class) ? @"+" : @"-",
                                                class_getName(class), sel_getName(selector),
                                                [arguments length] > 0 ? @" " : @"", arguments];
    addToJournal([line UTF8String]);
    [pool release];
}

const char *textOfString(NSString *string) {
    return [string UTF8String];
}

void *copyBlock(void *block) {
    return block ? _Block_copy(block) : NULL;
}

void releaseBlock(void *block) {
    if (block)
        _Block_release(block);
}

void callBlock(void *block) {
    ((void (*)(void *))functionOfBlock(block))(block);
}

void callBlockWithBool(void *block, BOOL value) {
    ((void (*)(void *, BOOL))functionOfBlock(block))(block, value);
}

void callBlockWithObject(void *block, id object) {
    ((void (*)(void *, id))functionOfBlock(block))(block, object);
}

@implementation UIColor
+ (UIColor *)named:(NSString *)name {
    UIColor *color = [[UIColor new] autorelease];
    color->name = [name copy];
    return color;
}
+ (UIColor *)colorWithRed:(double)red green:(double)green blue:(double)blue alpha:(double)alpha {
    return [self named:[NSString stringWithFormat:@"rgba(%g, %g, %g, %g)", red, green, blue, alpha]];
}
+ (UIColor *)colorWithWhite:(double)white alpha:(double)alpha {
    return [self named:[NSString stringWithFormat:@"white(%g, %g)", white, alpha]];
}
+ (UIColor *)labelColor { return [self named:@"label"]; }
+ (UIColor *)clearColor { return [self named:@"clear"]; }
+ (UIColor *)blackColor { return [self named:@"black"]; }
+ (UIColor *)whiteColor { return [self named:@"white"]; }
+ (UIColor *)grayColor { return [self named:@"gray"]; }
+ (UIColor *)yellowColor { return [self named:@"yellow"]; }
+ (UIColor *)lightGrayColor { return [self named:@"lightGray"]; }
+ (UIColor *)systemBlueColor { return [self named:@"systemBlue"]; }
+ (UIColor *)systemGreenColor { return [self named:@"systemGreen"]; }
+ (UIColor *)systemOrangeColor { return [self named:@"systemOrange"]; }
+ (UIColor *)systemRedColor { return [self named:@"systemRed"]; }
- (NSString *)description { return name; }
- (void *)CGColor { return self; }
- (void)dealloc {
    [name release];
    [super dealloc];
}
@end

@implementation UIFont
+ (UIFont *)systemFontOfSize:(double)size {
    UIFont *font = [[UIFont new] autorelease];
    font->pointSize = size;
    return font;
}
- (double)pointSize { return pointSize; }
@end

@implementation UIBezierPath
+ (UIBezierPath *)bezierPathWithRoundedRect:(CGRect)rect cornerRadius:(double)radius {
    record(self, _cmd, @"%@ %g", describeRect(rect), radius);
    return [[UIBezierPath new] autorelease];
}
- (void *)CGPath { return self; }
@end

@implementation UIImage
+ (UIImage *)madeOf:(NSString *)name {
    UIImage *image = [[UIImage new] autorelease];
    image->name = [name copy];
    return image;
}
+ (UIImage *)systemImageNamed:(NSString *)name {
    record(self, _cmd, @"%@", describe(name));
    return [name hasPrefix:@"no."] ? nil : [self madeOf:name];
}
+ (UIImage *)imageWithContentsOfFile:(NSString *)path {
    record(self, _cmd, @"%@", describe(path));
    return nil;
}
- (UIImage *)imageWithRenderingMode:(NSInteger)mode {
    record(self, _cmd, @"%ld", (long)mode);
    UIImage *image = [UIImage madeOf:name];
    image->renderingMode = mode;
    return image;
}
- (NSInteger)renderingMode { return renderingMode; }
- (NSString *)description { return [NSString stringWithFormat:@"<%@ %ld>", name, (long)renderingMode]; }
- (void)dealloc {
    [name release];
    [super dealloc];
}
@end

@implementation CALayer
- (double)cornerRadius { return cornerRadius; }
- (void)setCornerRadius:(double)radius {
    record(self, _cmd, @"%g", radius);
    cornerRadius = radius;
}
- (void)setBorderWidth:(double)width {
    record(self, _cmd, @"%g", width);
    borderWidth = width;
}
- (void)setBorderColor:(void *)color { record(self, _cmd, @"%@", describe(color)); }
- (void)setShadowColor:(void *)color { record(self, _cmd, @"%@", describe(color)); }
- (void)setShadowRadius:(double)radius { record(self, _cmd, @"%g", radius); }
- (void)setShadowOpacity:(float)opacity { record(self, _cmd, @"%g", opacity); }
- (void)setShadowOffset:(CGSize)offset { record(self, _cmd, @"{%g, %g}", offset.width, offset.height); }
- (void)setShadowPath:(void *)path { record(self, _cmd, @"%@", describe(path)); }
- (void)setMasksToBounds:(BOOL)masks { record(self, _cmd, @"%d", masks); }
@end

@implementation UIResponder
- (BOOL)becomeFirstResponder {
    record(self, _cmd, @"");
    return YES;
}
@end

@implementation UITouch
- (CGPoint)locationInView:(UIView *)view {
    record(self, _cmd, @"%@", describe(view));
    return place;
}
@end

@implementation UIEvent
@end

static Class refusing;

BOOL isRefusing(Class made) { return refusing == made; }

void refuseInitialisersOf(const char *className) { refusing = className ? objc_getClass(className) : Nil; }

static id nextAnswer; // owned

void answerNextInitialiserWith(id object) { ASSIGN(nextAnswer, object); }

static NSMutableArray *completions;

@implementation UIView
- (id)init {
    CGRect empty = {{0, 0}, {0, 0}};
    return [self initWithFrame:empty];
}
- (id)initWithFrame:(CGRect)given {
    record(self, _cmd, @"%@", describeRect(given));
    if (given.size.width < 0) { // so that a test can have it refuse
        [self release];
        return nil;
    }
    if (nextAnswer) {
        [self release];
        self = nextAnswer;
        nextAnswer = nil;
        if (layer) // readied before
            return self;
    }
    self = [super init];
    frame = given;
    alpha = 1;
    layer = [CALayer new];
    subviews = [NSMutableArray new];
    return self;
}
- (id)initWithCoder:(NSCoder *)coder {
    record(self, _cmd, @"%@", describe(coder));
    self = [super init];
    frame.size.width = 50;
    frame.size.height = 30;
    layer = [CALayer new];
    subviews = [NSMutableArray new];
    return self;
}
- (CGRect)frame { return frame; }
- (void)setFrame:(CGRect)given {
    record(self, _cmd, @"%@", describeRect(given));
    frame = given;
}
- (CGRect)bounds {
    CGRect bounds = {{0, 0}, frame.size};
    return bounds;
}
- (void)setCenter:(CGPoint)center {
    record(self, _cmd, @"{%g, %g}", center.x, center.y);
    frame.origin.x = center.x - frame.size.width / 2;
    frame.origin.y = center.y - frame.size.height / 2;
}
- (void)setBackgroundColor:(UIColor *)color {
    record(self, _cmd, @"%@", describe(color));
    ASSIGN(backgroundColor, color);
}
- (void)setTintColor:(UIColor *)color { record(self, _cmd, @"%@", describe(color)); }
- (double)alpha { return alpha; }
- (void)setAlpha:(double)given {
    record(self, _cmd, @"%g", given);
    alpha = given;
}
- (void)setContentMode:(NSInteger)mode { record(self, _cmd, @"%ld", (long)mode); }
- (void)setClipsToBounds:(BOOL)clips { record(self, _cmd, @"%d", clips); }
- (void)setUserInteractionEnabled:(BOOL)enabled { record(self, _cmd, @"%d", enabled); }
- (void)setAutoresizingMask:(NSUInteger)mask { record(self, _cmd, @"%lu", (unsigned long)mask); }
- (CALayer *)layer { return layer; }
- (void)addSubview:(UIView *)view {
    record(self, _cmd, @"%@", describe(view));
    [subviews addObject:view];
}
- (void)insertSubview:(UIView *)view atIndex:(NSInteger)index {
    record(self, _cmd, @"%@ %ld", describe(view), (long)index);
    [subviews insertObject:view atIndex:(NSUInteger)index];
}
- (void)layoutSubviews { record(self, _cmd, @""); }
- (void)didMoveToSuperview { record(self, _cmd, @""); }
+ (void)animateWithDuration:(double)duration
                      delay:(double)delay
                    options:(NSUInteger)options
                 animations:(void *)animations
                 completion:(void *)completion {
    record(self, _cmd, @"%g %g %lu%@", duration, delay, (unsigned long)options, completion ? @" completion" : @"");
    callBlock(animations);
    if (completions == nil)
        completions = [NSMutableArray new];
    if (completion)
        [completions addObject:[NSValue valueWithPointer:copyBlock(completion)]];
}
- (void)dealloc {
    [backgroundColor release];
    [layer release];
    [subviews release];
    [recognizers release];
    [super dealloc];
}
@end

void finishAnimations(void) {
    NSArray *finished = [completions autorelease];
    completions = nil;
    for (NSValue *completion in finished) {
        callBlockWithBool([completion pointerValue], YES);
        releaseBlock([completion pointerValue]);
    }
}

@implementation UIControl
- (void)addTarget:(id)given action:(SEL)selector forControlEvents:(NSUInteger)which {
    record(self, _cmd, @"%@ %s %lu", describe(given), sel_getName(selector), (unsigned long)which);
    target = given;
    action = selector;
    events = which;
}
- (void)sendActionsForControlEvents:(NSUInteger)which {
    record(self, _cmd, @"%lu", (unsigned long)which);
    if ((which & events) != 0)
        [target performSelector:action withObject:self];
}
- (BOOL)isTracking { return tracking; }
- (BOOL)beginTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    record(self, _cmd, @"%@ %@", describe(touch), describe(event));
    return YES;
}
- (BOOL)continueTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    record(self, _cmd, @"%@ %@", describe(touch), describe(event));
    return YES;
}
- (void)endTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
    record(self, _cmd, @"%@ %@", describe(touch), describe(event));
}
- (void)cancelTrackingWithEvent:(UIEvent *)event { record(self, _cmd, @"%@", describe(event)); }
@end

@implementation LeavingView
- (void)dealloc {
    [target performSelector:action withObject:self];
    [super dealloc];
}
@end

@implementation ReadiedView
+ (void)initialize {
    record(self, _cmd, @"");
}
@end

@implementation StandInCell
- (id)initWithStyle:(NSInteger)given reuseIdentifier:(NSString *)identifier specifier:(id)specifier {
    record(self, _cmd, @"%ld %@ %@", (long)given, describe(identifier), describe(specifier));
    CGRect empty = {{0, 0}, {0, 0}};
    self = [super initWithFrame:empty];
    style = given;
    reuseIdentifier = [identifier copy];
    return self;
}
- (UIView *)accessory { return nil; }
- (void)dealloc {
    [reuseIdentifier release];
    [super dealloc];
}
@end

@implementation UIImageView
- (UIImage *)image { return image; }
- (void)setImage:(UIImage *)given {
    record(self, _cmd, @"%@", describe(given));
    ASSIGN(image, given);
}
- (void)dealloc {
    [image release];
    [super dealloc];
}
@end

@implementation UILabel
- (NSString *)text { return text; }
- (void)setText:(NSString *)given {
    record(self, _cmd, @"%@", describe(given));
    ASSIGN(text, given);
}
- (void)setFont:(UIFont *)font { record(self, _cmd, @"%g", [font pointSize]); }
- (void)setTextColor:(UIColor *)color { record(self, _cmd, @"%@", describe(color)); }
- (void)setTextAlignment:(NSInteger)alignment { record(self, _cmd, @"%ld", (long)alignment); }
- (void)dealloc {
    [text release];
    [super dealloc];
}
@end

@implementation UISwitch
@end

@implementation UITextField
- (NSString *)text { return text; }
- (void)setText:(NSString *)given {
    record(self, _cmd, @"%@", describe(given));
    ASSIGN(text, given);
}
- (void)setPlaceholder:(NSString *)given {
    record(self, _cmd, @"%@", describe(given));
    ASSIGN(placeholder, given);
}
- (void)setBorderStyle:(NSInteger)style { record(self, _cmd, @"%ld", (long)style); }
- (void)dealloc {
    [text release];
    [placeholder release];
    [super dealloc];
}
@end

@implementation _UIBackdropViewSettings
+ (_UIBackdropViewSettings *)settingsForStyle:(NSInteger)style {
    record(self, _cmd, @"%ld", (long)style);
    return [[_UIBackdropViewSettings new] autorelease];
}
@end

@implementation _UIBackdropView
- (id)initWithFrame:(CGRect)given autosizesToFitSuperview:(BOOL)autosizes settings:(_UIBackdropViewSettings *)settings {
    record(self, _cmd, @"%@ %d %@", describeRect(given), autosizes, describe(settings));
    if (isRefusing([_UIBackdropView class])) {
        [self release];
        return nil;
    }
    return [super initWithFrame:given];
}
@end

@implementation UIAction
+ (UIAction *)actionWithTitle:(NSString *)title
                        image:(UIImage *)image
                   identifier:(NSString *)identifier
                      handler:(void *)handler {
    record(self, _cmd, @"%@ %@ %@%@", describe(title), describe(image), describe(identifier),
           handler ? @" handler" : @"");
    UIAction *action = [[UIAction new] autorelease];
    action->title = [title copy];
    action->handler = copyBlock(handler);
    return action;
}
- (void)setAttributes:(NSUInteger)given {
    record(self, _cmd, @"%lu", (unsigned long)given);
    attributes = given;
}
- (void)dealloc {
    [title release];
    releaseBlock(handler);
    [super dealloc];
}
@end

@implementation UIMenu
+ (UIMenu *)menuWithTitle:(NSString *)title children:(NSArray *)children {
    record(self, _cmd, @"%@ %@", describe(title), describe(children));
    UIMenu *menu = [[UIMenu new] autorelease];
    menu->children = [children copy];
    return menu;
}
- (void)dealloc {
    [children release];
    [super dealloc];
}
@end

@implementation UIBarButtonItem
- (id)initWithImage:(UIImage *)image menu:(UIMenu *)given {
    record(self, _cmd, @"%@ %@", describe(image), describe(given));
    self = [super init];
    menu = [given retain];
    return self;
}
- (void)setTintColor:(UIColor *)color { record(self, _cmd, @"%@", describe(color)); }
- (void)dealloc {
    [menu release];
    [super dealloc];
}
@end

@implementation UINavigationItem
- (void)setTitleView:(UIView *)view {
    record(self, _cmd, @"%@", describe(view));
    ASSIGN(titleView, view);
}
- (void)setRightBarButtonItems:(NSArray *)items {
    record(self, _cmd, @"%@", describe(items));
    ASSIGN(rightBarButtonItems, items);
}
- (void)dealloc {
    [titleView release];
    [leftBarButtonItems release];
    [rightBarButtonItems release];
    [super dealloc];
}
@end

@implementation UIViewController
- (id)init {
    self = [super init];
    navigationItem = [UINavigationItem new];
    return self;
}
- (UIView *)view {
    if (view == nil) {
        view = [UIView new];
        view->frame.size.width = 320;
        view->frame.size.height = 568;
        [self viewDidLoad];
    }
    return view;
}
- (void)viewDidLoad { record(self, _cmd, @""); }
- (UINavigationItem *)navigationItem { return navigationItem; }
- (UINavigationController *)navigationController { return navigationController; }
- (void)presentViewController:(UIViewController *)controller animated:(BOOL)animated completion:(void *)completion {
    record(self, _cmd, @"%@ %d%@", describe(controller), animated, completion ? @" completion" : @"");
    ASSIGN(presented, controller);
    if (completion)
        callBlock(completion);
}
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void *)completion {
    record(self, _cmd, @"%d%@", animated, completion ? @" completion" : @"");
    DESTROY(presented);
    if (completion)
        callBlock(completion);
}
- (UIViewController *)presentedViewController { return presented; }
- (id)popoverPresentationController { return nil; }
- (void)setModalPresentationStyle:(NSInteger)style { record(self, _cmd, @"%ld", (long)style); }
- (void)setModalInPresentation:(BOOL)modal { record(self, _cmd, @"%d", modal); }
- (void)dealloc {
    [view release];
    [navigationItem release];
    [presented release];
    [super dealloc];
}
@end

@implementation UINavigationController
- (void)pushViewController:(UIViewController *)controller animated:(BOOL)animated {
    record(self, _cmd, @"%@ %d", describe(controller), animated);
    if (pages == nil)
        pages = [NSMutableArray new];
    [pages addObject:controller];
    controller->navigationController = self;
}
- (void)dealloc {
    [pages release];
    [super dealloc];
}
@end

@implementation UIAlertAction
+ (UIAlertAction *)actionWithTitle:(NSString *)title style:(NSInteger)style handler:(void *)handler {
    record(self, _cmd, @"%@ %ld%@", describe(title), (long)style, handler ? @" handler" : @"");
    UIAlertAction *action = [[UIAlertAction new] autorelease];
    action->title = [title copy];
    action->handler = copyBlock(handler);
    return action;
}
- (void)dealloc {
    [title release];
    releaseBlock(handler);
    [super dealloc];
}
@end

@implementation UIAlertController
+ (UIAlertController *)alertControllerWithTitle:(NSString *)title
                                        message:(NSString *)message
                                 preferredStyle:(NSInteger)style {
    record(self, _cmd, @"%@ %@ %ld", describe(title), describe(message), (long)style);
    return [[UIAlertController new] autorelease];
}
- (void)addAction:(UIAlertAction *)action {
    record(self, _cmd, @"\"%@\"", action->title);
    if (actions == nil)
        actions = [NSMutableArray new];
    [actions addObject:action];
}
- (void)dealloc {
    [actions release];
    [super dealloc];
}
@end

@implementation OBBulletedListItem
@end

@implementation OBWelcomeController
- (id)initWithTitle:(NSString *)title detailText:(NSString *)detailText icon:(UIImage *)icon {
    record(self, _cmd, @"%@ %@ %@", describe(title), describe(detailText), describe(icon));
    if (isRefusing([OBWelcomeController class])) {
        [self release];
        return nil;
    }
    return [super init];
}
- (id)initWithTitle:(NSString *)title detailText:(NSString *)detailText symbolName:(NSString *)symbolName {
    record(self, _cmd, @"%@ %@ %@", describe(title), describe(detailText), describe(symbolName));
    return [super init];
}
- (void)addBulletedListItemWithTitle:(NSString *)title description:(NSString *)description image:(UIImage *)image {
    record(self, _cmd, @"%@ %@ %@", describe(title), describe(description), describe(image));
}
- (void)addBulletedListItemWithTitle:(NSString *)title
                         description:(NSString *)description
                               image:(UIImage *)image
                           tintColor:(UIColor *)color {
    record(self, _cmd, @"%@ %@ %@ %@", describe(title), describe(description), describe(image), describe(color));
    if (isRefusing([OBBulletedListItem class]))
        return;
    OBBulletedListItem *item = [OBBulletedListItem new];
    [[self bulletedList]->subviews addObject:item];
    [item release];
}
- (UIView *)bulletedList {
    if (list == nil)
        list = [UIView new];
    return list;
}
- (void)dealloc {
    [list release];
    [super dealloc];
}
@end

@implementation UIApplication
+ (UIApplication *)sharedApplication {
    static UIApplication *shared;
    if (shared == nil)
        shared = [UIApplication new];
    return shared;
}
- (void)suspend { record(self, _cmd, @""); }
- (BOOL)canOpenURL:(NSURL *)url {
    record(self, _cmd, @"%@", describe(url));
    return ![[url scheme] isEqual:@"none"];
}
- (void)openURL:(NSURL *)url options:(NSDictionary *)options completionHandler:(void *)completion {
    record(self, _cmd, @"%@ %lu%@", describe(url), (unsigned long)[options count],
           completion ? @" completion" : @"");
    if (completion)
        callBlockWithBool(completion, [[url scheme] isEqual:@"works"]);
}
@end

@implementation PSSpecifier
- (id)target { return target; }
- (void)setTarget:(id)given { target = given; }
- (id)propertyForKey:(NSString *)key { return [properties objectForKey:key]; }
- (void)setProperty:(id)value forKey:(NSString *)key {
    record(self, _cmd, @"%@ %@", describe(value), describe(key));
    if (properties == nil)
        properties = [NSMutableDictionary new];
    [properties setObject:value forKey:key];
}
- (void)dealloc {
    [properties release];
    [super dealloc];
}
@end

static PSSpecifier *makeSpecifier(NSString *identifier) {
    PSSpecifier *specifier = [[PSSpecifier new] autorelease];
    specifier->properties = [[NSMutableDictionary alloc] initWithObjectsAndKeys:identifier, @"id", nil];
    return specifier;
}

@implementation PSListController
- (NSArray *)specifiers {
    record(self, _cmd, @"");
    return _specifiers;
}
- (NSArray *)keptSpecifiers { return _specifiers; }
- (NSBundle *)bundle { return [NSBundle bundleForClass:[self class]]; }
- (NSArray *)loadSpecifiersFromPlistName:(NSString *)name target:(id)target {
    record(self, _cmd, @"%@ %@", describe(name), describe(target));
    return [NSMutableArray arrayWithObjects:makeSpecifier(@"group"), makeSpecifier(@"row"), nil];
}
- (void)reloadSpecifiers { record(self, _cmd, @""); }
- (id)readPreferenceValue:(PSSpecifier *)specifier {
    record(self, _cmd, @"%@", describe(specifier));
    return [specifier propertyForKey:@"value"];
}
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
    record(self, _cmd, @"%@ %@", describe(value), describe(specifier));
}
- (PSSpecifier *)specifierForID:(NSString *)identifier {
    record(self, _cmd, @"%@", describe(identifier));
    for (PSSpecifier *specifier in _specifiers) {
        if ([[specifier propertyForKey:@"id"] isEqual:identifier])
            return specifier;
    }
    return nil;
}
- (void)dealloc {
    [_specifiers release];
    [super dealloc];
}
@end
