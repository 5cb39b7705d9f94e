// Classes of other code in the process, which has come first to names that the pane has too.
#import <Foundation/Foundation.h>

@interface CorvexBox : NSObject
@end

@implementation CorvexBox
@end

@interface GlintImageSwitch : NSObject
@end

@implementation GlintImageSwitch
@end

@interface LateView : NSObject
@end

@implementation LateView
@end

@interface LateView2 : NSObject
@end

@implementation LateView2
@end
