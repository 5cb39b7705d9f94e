// What GNUstep's Foundation lacks of the frameworks', and what the tests want to see.
#import "Journal.h"
#import "StandIns.h"

void logWithArguments(NSString *format, va_list arguments);

void logWithArguments(NSString *format, va_list arguments) {
    NSAutoreleasePool *pool = [NSAutoreleasePool new];
    NSString *line = [[[NSString alloc] initWithFormat:format arguments:arguments] autorelease];
    addToJournal([[@"log: " stringByAppendingString:line] UTF8String]);
    [pool release];
}

void NSLog(NSString *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    logWithArguments(format, arguments);
    va_end(arguments);
}

// The preferences of each suite, for as long as the process lives.
@interface SuiteDefaults : NSUserDefaults { NSMutableDictionary *values; }
@end

static NSMutableDictionary *suites;

@implementation SuiteDefaults
- (id)initWithSuite:(NSString *)name {
    if (suites == nil)
        suites = [NSMutableDictionary new];
    if ([suites objectForKey:name] == nil)
        [suites setObject:[NSMutableDictionary dictionary] forKey:name];
    values = [[suites objectForKey:name] retain];
    return self;
}
- (id)objectForKey:(NSString *)key { return [values objectForKey:key]; }
- (NSString *)stringForKey:(NSString *)key {
    id value = [values objectForKey:key];
    if ([value isKindOfClass:[NSNumber class]])
        return [value stringValue];
    return [value isKindOfClass:[NSString class]] ? value : nil;
}
- (void)setObject:(id)value forKey:(NSString *)key {
    record(self, _cmd, @"%@ %@", describe(value), describe(key));
    [values setObject:value forKey:key];
}
- (void)removeObjectForKey:(NSString *)key {
    record(self, _cmd, @"%@", describe(key));
    [values removeObjectForKey:key];
}
- (NSDictionary *)dictionaryRepresentation { return [[values copy] autorelease]; }
- (void)removePersistentDomainForName:(NSString *)name {
    record(self, _cmd, @"%@", describe(name));
    [[suites objectForKey:name] removeAllObjects];
}
- (BOOL)synchronize {
    record(self, _cmd, @"");
    return YES;
}
- (void)dealloc {
    [values release];
    values = nil;
    [super dealloc];
}
@end

@interface NSUserDefaults (StandIn)
- (id)initWithSuiteName:(NSString *)name;
@end

@implementation NSUserDefaults (StandIn)
- (id)initWithSuiteName:(NSString *)name {
    record(self, _cmd, @"%@", describe(name));
    [self release];
    return [[SuiteDefaults alloc] initWithSuite:name];
}
@end

void forgetSuites(void) {
    DESTROY(suites);
}

static NSString *const panesSuite = @"com.orvel.corvexprefs";

id storedValue(const char *key) {
    return [[suites objectForKey:panesSuite] objectForKey:[NSString stringWithUTF8String:key]];
}

void storeValue(id value, const char *key) {
    [[[SuiteDefaults alloc] initWithSuite:panesSuite] release]; // which makes the suite when there is none
    [[suites objectForKey:panesSuite] setObject:value forKey:[NSString stringWithUTF8String:key]];
}

@interface NSFileHandle (StandIn)
- (BOOL)writeData:(NSData *)data error:(NSError **)error;
- (BOOL)closeAndReturnError:(NSError **)error;
@end

static BOOL failed(NSError **error) {
    if (error)
        *error = [NSError errorWithDomain:NSCocoaErrorDomain code:NSFileWriteUnknownError userInfo:nil];
    return NO;
}

@implementation NSFileHandle (StandIn)
- (BOOL)writeData:(NSData *)data error:(NSError **)error {
    @try {
        [self writeData:data];
    } @catch (NSException *exception) {
        return failed(error);
    }
    return YES;
}
- (BOOL)closeAndReturnError:(NSError **)error {
    @try {
        [self closeFile];
    } @catch (NSException *exception) {
        return failed(error);
    }
    return YES;
}
@end

static NSString *documents = @"/var/mobile/Documents";

void setDocumentsFolder(const char *path) {
    ASSIGN(documents, path ? [NSString stringWithUTF8String:path] : @"/var/mobile/Documents");
}

@interface NSFileManager (StandIn)
- (NSURL *)temporaryDirectory;
- (NSArray *)URLsForDirectory:(NSUInteger)directory inDomains:(NSUInteger)domains;
@end

@implementation NSFileManager (StandIn)
- (NSURL *)temporaryDirectory { return [NSURL fileURLWithPath:NSTemporaryDirectory()]; }
- (NSArray *)URLsForDirectory:(NSUInteger)directory inDomains:(NSUInteger)domains {
    record(self, _cmd, @"%lu %lu", (unsigned long)directory, (unsigned long)domains);
    return [NSArray arrayWithObject:[NSURL fileURLWithPath:documents]];
}
@end
