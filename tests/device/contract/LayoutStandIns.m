#import "LayoutStandIns.h"

static NSString *describeInsets(UIEdgeInsets insets) {
    return [NSString stringWithFormat:@"{%g, %g, %g, %g}", insets.top, insets.left, insets.bottom, insets.right];
}

@implementation CALayer (Tree)
- (void)setFrame:(CGRect)frame { record(self, _cmd, @"%@", describeRect(frame)); }
- (void)insertSublayer:(CALayer *)layer atIndex:(unsigned)index {
    record(self, _cmd, @"%@ %u", describe(layer), index);
}
@end

@implementation CAGradientLayer
- (void)setColors:(NSArray *)colors { record(self, _cmd, @"%@", describe(colors)); }
- (void)setStartPoint:(CGPoint)point { record(self, _cmd, @"{%g, %g}", point.x, point.y); }
- (void)setEndPoint:(CGPoint)point { record(self, _cmd, @"{%g, %g}", point.x, point.y); }
@end

@implementation NSLayoutConstraint
+ (void)activateConstraints:(NSArray *)constraints { record(self, _cmd, @"%@", describe(constraints)); }
@end

@implementation NSLayoutAnchor
- (NSLayoutConstraint *)constraintEqualToAnchor:(NSLayoutAnchor *)anchor constant:(double)constant {
    record(self, _cmd, @"%@ %g", describe(anchor), constant);
    return [[NSLayoutConstraint new] autorelease];
}
@end

@implementation NSLayoutXAxisAnchor
@end

@implementation NSLayoutYAxisAnchor
@end

@implementation NSLayoutDimension
- (NSLayoutConstraint *)constraintEqualToConstant:(double)constant {
    record(self, _cmd, @"%g", constant);
    return [[NSLayoutConstraint new] autorelease];
}
@end

// Writes the question down too, since anchors of one class look alike.
static id answer(id receiver, SEL question, Class class) {
    record(receiver, question, @"");
    return [[class new] autorelease];
}

@implementation UILayoutGuide
- (id)topAnchor { return answer(self, _cmd, [NSLayoutYAxisAnchor class]); }
- (id)centerYAnchor { return answer(self, _cmd, [NSLayoutYAxisAnchor class]); }
@end

@implementation UITapGestureRecognizer
- (id)initWithTarget:(id)target action:(SEL)action {
    record(self, _cmd, @"%@ %s", describe(target), sel_getName(action));
    return [super init];
}
- (UIView *)view { return view; }
@end

@implementation UIView (Layout)
- (UIColor *)tintColor { return [UIColor named:@"tint"]; }
- (void)setTag:(NSInteger)tag { record(self, _cmd, @"%ld", (long)tag); }
- (void)addGestureRecognizer:(UITapGestureRecognizer *)recognizer {
    record(self, _cmd, @"%@", describe(recognizer));
    recognizer->view = self;
    if (recognizers == nil)
        recognizers = [NSMutableArray new];
    [recognizers addObject:recognizer];
}
- (NSArray *)subviews { return subviews; }
- (void)setTranslatesAutoresizingMaskIntoConstraints:(BOOL)translates { record(self, _cmd, @"%d", translates); }
- (void)setLayoutMargins:(UIEdgeInsets)margins { record(self, _cmd, @"%@", describeInsets(margins)); }
- (void)tintColorDidChange { record(self, _cmd, @""); }
- (id)leadingAnchor { return answer(self, _cmd, [NSLayoutXAxisAnchor class]); }
- (id)trailingAnchor { return answer(self, _cmd, [NSLayoutXAxisAnchor class]); }
- (id)centerXAnchor { return answer(self, _cmd, [NSLayoutXAxisAnchor class]); }
- (id)topAnchor { return answer(self, _cmd, [NSLayoutYAxisAnchor class]); }
- (id)bottomAnchor { return answer(self, _cmd, [NSLayoutYAxisAnchor class]); }
- (id)centerYAnchor { return answer(self, _cmd, [NSLayoutYAxisAnchor class]); }
- (id)widthAnchor { return answer(self, _cmd, [NSLayoutDimension class]); }
- (id)heightAnchor { return answer(self, _cmd, [NSLayoutDimension class]); }
- (id)safeAreaLayoutGuide { return answer(self, _cmd, [UILayoutGuide class]); }
@end

@implementation UIControl (Content)
- (void)setContentHorizontalAlignment:(NSInteger)alignment { record(self, _cmd, @"%ld", (long)alignment); }
- (void)setContentVerticalAlignment:(NSInteger)alignment { record(self, _cmd, @"%ld", (long)alignment); }
@end

@implementation UIButton
+ (UIButton *)buttonWithType:(NSInteger)type {
    record(self, _cmd, @"%ld", (long)type);
    return [[UIButton new] autorelease];
}
- (void)setImage:(UIImage *)image forState:(NSUInteger)state {
    record(self, _cmd, @"%@ %lu", describe(image), (unsigned long)state);
}
- (void)setImageEdgeInsets:(UIEdgeInsets)insets { record(self, _cmd, @"%@", describeInsets(insets)); }
- (UIImageView *)imageView {
    if (imageView == nil)
        imageView = [UIImageView new];
    return imageView;
}
- (void)dealloc {
    [imageView release];
    [super dealloc];
}
@end

@implementation UIStackView
- (void)setAxis:(NSInteger)axis { record(self, _cmd, @"%ld", (long)axis); }
- (void)setDistribution:(NSInteger)distribution { record(self, _cmd, @"%ld", (long)distribution); }
- (void)setAlignment:(NSInteger)alignment { record(self, _cmd, @"%ld", (long)alignment); }
- (void)setSpacing:(double)spacing { record(self, _cmd, @"%g", spacing); }
- (void)setLayoutMarginsRelativeArrangement:(BOOL)relative { record(self, _cmd, @"%d", relative); }
- (void)addArrangedSubview:(UIView *)view {
    record(self, _cmd, @"%@", describe(view));
    [subviews addObject:view];
}
@end

@implementation UINavigationBar
- (void)setItems:(NSArray *)given {
    record(self, _cmd, @"%@", describe(given));
    ASSIGN(items, given);
}
- (void)dealloc {
    [items release];
    [super dealloc];
}
@end

@implementation UINavigationItem (Buttons)
- (id)initWithTitle:(NSString *)title {
    record(self, _cmd, @"%@", describe(title));
    return [super init];
}
- (void)setLeftBarButtonItem:(UIBarButtonItem *)item {
    record(self, _cmd, @"%@", describe(item));
    ASSIGN(leftBarButtonItems, [NSArray arrayWithObject:item]);
}
- (void)setRightBarButtonItem:(UIBarButtonItem *)item {
    record(self, _cmd, @"%@", describe(item));
    ASSIGN(rightBarButtonItems, [NSArray arrayWithObject:item]);
}
@end

@implementation UIBarButtonItem (Title)
- (id)initWithTitle:(NSString *)title style:(NSInteger)style target:(id)target action:(SEL)action {
    record(self, _cmd, @"%@ %ld %@ %s", describe(title), (long)style, describe(target), sel_getName(action));
    return [super init];
}
@end

@implementation UIScrollView
@end

@implementation UITableView
- (void)beginUpdates { record(self, _cmd, @""); }
- (void)endUpdates { record(self, _cmd, @""); }
@end

@implementation UITableViewCell
- (id)initWithStyle:(NSInteger)style reuseIdentifier:(NSString *)identifier {
    record(self, _cmd, @"%ld %@", (long)style, describe(identifier));
    CGRect empty = {{0, 0}, {0, 0}}, content = {{0, 0}, {320, 44}};
    self = [super initWithFrame:empty];
    contentView = [[UIView alloc] initWithFrame:content];
    return self;
}
- (UIView *)contentView { return contentView; }
- (void)dealloc {
    [contentView release];
    [super dealloc];
}
@end

@implementation PSTableCell
- (id)initWithStyle:(NSInteger)style reuseIdentifier:(NSString *)identifier specifier:(PSSpecifier *)given {
    record(self, _cmd, @"%ld %@ %@", (long)style, describe(identifier), describe(given));
    self = [self initWithStyle:style reuseIdentifier:identifier];
    ASSIGN(specifier, given);
    return self;
}
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)given { record(self, _cmd, @"%@", describe(given)); }
- (PSSpecifier *)specifier { return specifier; }
- (void)dealloc {
    [specifier release];
    [super dealloc];
}
@end

@implementation PSControlTableCell
@end

@implementation PSSwitchTableCell
@end

@implementation NSIndexPath (Rows)
+ (NSIndexPath *)indexPathForRow:(NSInteger)row inSection:(NSInteger)section {
    NSUInteger indexes[] = {(NSUInteger)section, (NSUInteger)row};
    return [self indexPathWithIndexes:indexes length:2];
}
- (NSInteger)section { return (NSInteger)[self indexAtPosition:0]; }
- (NSInteger)row { return (NSInteger)[self indexAtPosition:1]; }
@end

@implementation PSListController (Table)
- (UITableView *)table { return [[UITableView new] autorelease]; }
- (PSSpecifier *)specifierAtIndexPath:(NSIndexPath *)indexPath {
    record(self, _cmd, @"%d.%d", (int)[indexPath section], (int)[indexPath row]);
    NSUInteger row = (NSUInteger)[indexPath row];
    return row < [_specifiers count] ? [_specifiers objectAtIndex:row] : nil;
}
- (double)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)indexPath {
    record(self, _cmd, @"%@ %d.%d", describe(tableView), (int)[indexPath section], (int)[indexPath row]);
    return 52.5;
}
@end
