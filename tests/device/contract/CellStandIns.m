// Stand-ins of what the pane's own cells ask for besides: effects, pictures by name, fonts, and where a view is.
#import "LayoutStandIns.h"

@interface UIBlurEffect : NSObject
@end

@implementation UIBlurEffect
+ (UIBlurEffect *)effectWithStyle:(NSInteger)style {
    record(self, _cmd, @"%ld", (long)style);
    return [[UIBlurEffect new] autorelease];
}
@end

@interface UIVisualEffectView : UIView
@end

@implementation UIVisualEffectView
- (id)initWithEffect:(UIBlurEffect *)effect {
    record(self, _cmd, @"%@", describe(effect));
    if (isRefusing([UIVisualEffectView class])) {
        [self release];
        return nil;
    }
    CGRect empty = {{0, 0}, {0, 0}};
    return [super initWithFrame:empty];
}
@end

static UIViewController *rootController, *ancestorController; // not kept alive

static id shownWindow; // likewise

void showRootController(UIViewController *controller) { rootController = controller; }
void showWindow(id window) { shownWindow = window; }
void putViewsInto(UIViewController *controller) { ancestorController = controller; }

@interface UIWindow : UIView
@end

@implementation UIWindow
- (UIViewController *)rootViewController { return rootController; }
@end

@implementation UIApplication (Windows)
- (UIWindow *)keyWindow {
    record(self, _cmd, @"");
    return shownWindow ? shownWindow : [[UIWindow new] autorelease];
}
@end

@implementation UIView (Place)
- (UIView *)superview { return superview; }
- (UIViewController *)_viewControllerForAncestor { return ancestorController; }
- (void)setAccessibilityLabel:(NSString *)label { record(self, _cmd, @"%@", describe(label)); }
@end

void moveView(UIView *view, UIView *superview) {
    view->superview = superview;
    [view didMoveToSuperview];
}

@interface UIFont (Weights)
- (id)initWithSize:(double)size;
@end

@implementation UIFont (Weights)
- (id)initWithSize:(double)size {
    self = [super init];
    pointSize = size;
    return self;
}
+ (UIFont *)systemFontOfSize:(double)size weight:(double)weight {
    record(self, _cmd, @"%g %g", size, weight);
    return [[[UIFont alloc] initWithSize:size] autorelease];
}
+ (UIFont *)boldSystemFontOfSize:(double)size {
    record(self, _cmd, @"%g", size);
    return [[[UIFont alloc] initWithSize:size] autorelease];
}
@end

@implementation UIImage (Names)
+ (UIImage *)imageNamed:(NSString *)name {
    record(self, _cmd, @"%@", describe(name));
    return [name hasSuffix:@"(null).png"] ? nil : [self systemImageNamed:[name lastPathComponent]];
}
+ (UIImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle compatibleWithTraitCollection:(id)traits {
    record(self, _cmd, @"%@ %@ %@", describe(name), describe([bundle bundlePath]), describe(traits));
    return nil;
}
@end

@implementation UILabel (Lines)
- (void)setNumberOfLines:(NSInteger)lines { record(self, _cmd, @"%ld", (long)lines); }
- (void)setLineBreakMode:(NSInteger)mode { record(self, _cmd, @"%ld", (long)mode); }
- (void)setAdjustsFontSizeToFitWidth:(BOOL)adjusts { record(self, _cmd, @"%d", adjusts); }
- (void)setMinimumScaleFactor:(double)factor { record(self, _cmd, @"%g", factor); }
- (void)setAdjustsFontForContentSizeCategory:(BOOL)adjusts { record(self, _cmd, @"%d", adjusts); }
- (void)setShadowColor:(UIColor *)color { record(self, _cmd, @"%@", describe(color)); }
- (void)setShadowOffset:(CGSize)offset { record(self, _cmd, @"{%g, %g}", offset.width, offset.height); }
@end
