// What the pane keeps under the jailbreak's root lies in a folder of the tests' own, for as long as one of them runs. Of the
// machine's "/var/jb" nothing is read, made or removed.
#import "StandIns.h"
#import <objc/runtime.h>
#include <stdio.h>
#include <unistd.h>

static NSString *const root = @"/var/jb";

static NSString *folderOfRoot(void) {
    NSString *name = [NSString stringWithFormat:@"corvex-jailbreak-root-%d", getpid()];
    return [@P_tmpdir stringByAppendingPathComponent:name]; // the folder for temporary files is looked at by tests
}

static NSString *moved(NSString *path) {
    if (![path hasPrefix:[root stringByAppendingString:@"/"]])
        return path;
    return [folderOfRoot() stringByAppendingString:[path substringFromIndex:[root length]]];
}

const char *placeOfFile(const char *path) { return [moved([NSString stringWithUTF8String:path]) UTF8String]; }

void emptyJailbreakRoot(void) { [[NSFileManager defaultManager] removeItemAtPath:folderOfRoot() error:NULL]; }

@interface NSFileManager (JailbreakRoot)
- (BOOL)fileExistsAtMovedPath:(NSString *)path;
- (BOOL)removeItemAtMovedPath:(NSString *)path error:(NSError **)error;
- (BOOL)copyItemAtPath:(NSString *)source toMovedPath:(NSString *)path error:(NSError **)error;
- (BOOL)createDirectoryAtMovedPath:(NSString *)path
       withIntermediateDirectories:(BOOL)intermediate
                        attributes:(NSDictionary *)attributes
                             error:(NSError **)error;
@end

// Each is called in the place of the method of nearly its name, and calls that one by its own.
@implementation NSFileManager (JailbreakRoot)
+ (void)load {
    const SEL methods[][2] = {
        {@selector(fileExistsAtPath:), @selector(fileExistsAtMovedPath:)},
        {@selector(removeItemAtPath:error:), @selector(removeItemAtMovedPath:error:)},
        {@selector(copyItemAtPath:toPath:error:), @selector(copyItemAtPath:toMovedPath:error:)},
        {@selector(createDirectoryAtPath:withIntermediateDirectories:attributes:error:),
         @selector(createDirectoryAtMovedPath:withIntermediateDirectories:attributes:error:)},
    };
    for (size_t index = 0; index < sizeof methods / sizeof *methods; ++index)
        method_exchangeImplementations(class_getInstanceMethod(self, methods[index][0]),
                                       class_getInstanceMethod(self, methods[index][1]));
}
- (BOOL)fileExistsAtMovedPath:(NSString *)path { return [self fileExistsAtMovedPath:moved(path)]; }
- (BOOL)removeItemAtMovedPath:(NSString *)path error:(NSError **)error {
    return [self removeItemAtMovedPath:moved(path) error:error];
}
- (BOOL)copyItemAtPath:(NSString *)source toMovedPath:(NSString *)path error:(NSError **)error {
    return [self copyItemAtPath:moved(source) toMovedPath:moved(path) error:error];
}
- (BOOL)createDirectoryAtMovedPath:(NSString *)path
       withIntermediateDirectories:(BOOL)intermediate
                        attributes:(NSDictionary *)attributes
                             error:(NSError **)error {
    return [self createDirectoryAtMovedPath:moved(path)
                withIntermediateDirectories:intermediate
                                 attributes:attributes
                                      error:error];
}
@end
