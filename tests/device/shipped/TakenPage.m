// A class of other code in the process, which has come first to the name of the pane's first page.
#import <Foundation/Foundation.h>

@interface cxRootListController : NSObject
@end

@implementation cxRootListController
@end
