// Stand-ins of what files are chosen with and shared by.
#import "StandIns.h"

static NSInteger deviceIdiom = 1; // a tablet's

void setDeviceIdiom(long idiom) { deviceIdiom = idiom; }

@interface UIDevice : NSObject
@end

@implementation UIDevice
+ (UIDevice *)currentDevice {
    static UIDevice *shared;
    if (shared == nil)
        shared = [UIDevice new];
    return shared;
}
- (NSInteger)userInterfaceIdiom {
    record(self, _cmd, @"");
    return deviceIdiom;
}
@end

@interface UIPopoverPresentationController : NSObject
@end

@implementation UIPopoverPresentationController
- (void)setSourceView:(UIView *)view { record(self, _cmd, @"%@", describe(view)); }
- (void)setSourceRect:(CGRect)rect { record(self, _cmd, @"%@", describeRect(rect)); }
@end

@interface UIActivityViewController : UIViewController {
    UIPopoverPresentationController *popover;
}
@end

@implementation UIActivityViewController
- (id)initWithActivityItems:(NSArray *)items applicationActivities:(NSArray *)activities {
    record(self, _cmd, @"%@ %@", describe(items), describe(activities));
    if (isRefusing([UIActivityViewController class])) {
        [self release];
        return nil;
    }
    if ((self = [self init]))
        popover = [UIPopoverPresentationController new];
    return self;
}
- (UIPopoverPresentationController *)popoverPresentationController { return popover; }
- (void)dealloc {
    [popover release];
    [super dealloc];
}
@end

@interface UIDocumentPickerViewController : UIViewController {
@public
    id delegate; // not kept alive
}
@end

@implementation UIDocumentPickerViewController
- (id)initWithDocumentTypes:(NSArray *)types inMode:(NSUInteger)mode {
    record(self, _cmd, @"%@ %lu", describe(types), (unsigned long)mode);
    return [self init];
}
- (void)setDelegate:(id)given {
    record(self, _cmd, @"%@", describe(given));
    delegate = given;
}
- (void)setAllowsMultipleSelection:(BOOL)allows { record(self, _cmd, @"%d", allows); }
- (void)setDirectoryURL:(NSURL *)folder { record(self, _cmd, @"%@", describe(folder)); }
@end

@interface NSObject (DocumentPickerDelegate)
- (void)documentPicker:(UIDocumentPickerViewController *)picker didPickDocumentsAtURLs:(NSArray *)urls;
@end

void pickDocument(UIDocumentPickerViewController *picker, const char *path) {
    NSURL *url = [NSURL fileURLWithPath:[NSString stringWithUTF8String:path]];
    [picker->delegate documentPicker:picker didPickDocumentsAtURLs:[NSArray arrayWithObject:url]];
}

static bool accessIsRefused;

void refuseAccess(bool refused) { accessIsRefused = refused; }

@implementation NSURL (StandIn)
- (BOOL)startAccessingSecurityScopedResource {
    record(self, _cmd, @"%@", [self path]);
    return !accessIsRefused;
}
- (void)stopAccessingSecurityScopedResource { record(self, _cmd, @"%@", [self path]); }
@end

// GNUstep's own centre is at work here.
void observe(id observer, const char *name) {
    [[NSNotificationCenter defaultCenter] addObserver:observer
                                             selector:@selector(noticed:)
                                                 name:[NSString stringWithUTF8String:name]
                                               object:nil];
}

void postNotification(const char *name) {
    [[NSNotificationCenter defaultCenter] postNotificationName:[NSString stringWithUTF8String:name] object:nil];
}

static id watchedObserver; // not owned
static unsigned removals;

@implementation NSNotificationCenter (StandIn)
// The original once the two have changed places.
- (void)countAndRemoveObserver:(id)observer {
    removals += observer == watchedObserver;
    [self countAndRemoveObserver:observer];
}
@end

void countRemovalsOf(id observer) {
    static bool isCounted;
    Class centre = [NSNotificationCenter class];
    if (!isCounted)
        method_exchangeImplementations(class_getInstanceMethod(centre, @selector(removeObserver:)),
                                       class_getInstanceMethod(centre, @selector(countAndRemoveObserver:)));
    isCounted = true;
    watchedObserver = observer;
    removals = 0;
}

unsigned countedRemovals(void) { return removals; }
