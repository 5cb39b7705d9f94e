// Stand-ins of the frameworks' classes. Each message that is sent to one is written into the journal, with
// its arguments; what the stand-in then does is the least that whoever sent it relies on.
#import <Foundation/Foundation.h>

typedef struct CGPoint {
    double x, y;
} CGPoint;

typedef struct CGSize {
    double width, height;
} CGSize;

typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;

// Writes "-[UIView setFrame:] {{0, 0}, {50, 30}}" into the journal; the receiver's own class is named.
void record(id receiver, SEL selector, NSString* format, ...);
// How arguments are written: texts in quotes, colours by their name, everything else by its class.
NSString* describe(id object);
NSString* describeRect(CGRect rect);

// Whether initialisers of that class are to answer nil.
BOOL isRefusing(Class made);

// Blocks, as whoever takes one keeps and calls it.
void* copyBlock(void* block);
void releaseBlock(void* block);
void callBlock(void* block);
void callBlockWithBool(void* block, BOOL value);
void callBlockWithObject(void* block, id object);

@interface NSCoder (StandIn)
@end

@interface UIColor : NSObject {
    NSString* name;
}
+ (UIColor*)named:(NSString*)name;
- (void*)CGColor;
@end

@interface UIFont : NSObject {
    double pointSize;
}
@end

@interface UIBezierPath : NSObject
@end

@interface UIImage : NSObject {
    NSString* name;
    NSInteger renderingMode;
}
+ (UIImage*)systemImageNamed:(NSString*)name;
@end

@interface CALayer : NSObject {
    double cornerRadius, borderWidth;
}
@end

@interface UIResponder : NSObject
- (BOOL)becomeFirstResponder;
@end

@interface UITouch : NSObject {
@public
    CGPoint place;
}
@end

@interface UIEvent : NSObject
@end

@interface UIView : UIResponder {
@public
    CGRect frame;
    double alpha;
    UIColor* backgroundColor;
    CALayer* layer;
    UIView* superview; // not kept alive
    NSMutableArray* subviews;
    NSMutableArray* recognizers;
}
- (id)initWithFrame:(CGRect)frame;
- (id)initWithCoder:(NSCoder*)coder;
- (void)layoutSubviews;
- (void)didMoveToSuperview;
@end

@interface UIControl : UIView {
@public
    id target;
    SEL action;
    NSUInteger events;
    BOOL tracking;
}
- (BOOL)beginTrackingWithTouch:(UITouch*)touch withEvent:(UIEvent*)event;
- (BOOL)continueTrackingWithTouch:(UITouch*)touch withEvent:(UIEvent*)event;
- (void)endTrackingWithTouch:(UITouch*)touch withEvent:(UIEvent*)event;
- (void)cancelTrackingWithEvent:(UIEvent*)event;
@end

// A view that tells its target, with its action, that its end goes on.
@interface LeavingView : UIControl
@end

// A view whose class readies itself with its first message, and what is derived from it likewise.
@interface ReadiedView : UIView
@end

// A view with an initialiser of its own, as cells have one.
@interface StandInCell : UIView {
@public
    NSInteger style;
    NSString* reuseIdentifier;
}
- (id)initWithStyle:(NSInteger)style reuseIdentifier:(NSString*)identifier specifier:(id)specifier;
- (UIView*)accessory;
@end

@interface UIImageView : UIView {
    UIImage* image;
}
@end

@interface UILabel : UIView {
    NSString* text;
}
@end

@interface UISwitch : UIControl
@end

@interface UITextField : UIControl {
    NSString *text, *placeholder;
}
@end

@interface _UIBackdropViewSettings : NSObject
@end

@interface _UIBackdropView : UIView
@end

@interface UIAction : NSObject {
@public
    NSString* title;
    void* handler;
    NSUInteger attributes;
}
@end

@interface UIMenu : NSObject {
@public
    NSArray* children;
}
@end

@interface UIBarButtonItem : NSObject {
@public
    UIMenu* menu;
}
@end

@interface UINavigationItem : NSObject {
@public
    UIView* titleView;
    NSArray* leftBarButtonItems;
    NSArray* rightBarButtonItems;
}
@end

@interface UIViewController : UIResponder {
@public
    UIView* view;
    UINavigationItem* navigationItem;
    id navigationController; // not kept alive
    UIViewController* presented;
}
- (UIView*)view;
- (void)viewDidLoad;
@end

@interface UINavigationController : UIViewController {
@public
    NSMutableArray* pages;
}
@end

@interface UIAlertAction : NSObject {
@public
    NSString* title;
    void* handler;
}
@end

@interface UIAlertController : UIViewController {
@public
    NSMutableArray* actions;
}
@end

@interface OBBulletedListItem : UIView
@end

@interface OBWelcomeController : UIViewController {
@public
    UIView* list;
}
- (UIView*)bulletedList;
@end

@interface UIApplication : UIResponder
@end

@interface PSSpecifier : NSObject {
@public
    NSMutableDictionary* properties;
    id target; // not kept alive
}
@end

@interface PSListController : UIViewController {
@protected
    NSMutableArray* _specifiers;
}
- (NSArray*)specifiers;
- (NSArray*)keptSpecifiers;
- (id)readPreferenceValue:(PSSpecifier*)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;
- (void)reloadSpecifiers;
- (NSBundle*)bundle;
@end
