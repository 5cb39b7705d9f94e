#pragma once

#include "CoreGraphics/CGGeometry.h"
#include "Runtime.h"

#include <string>

/// What the frameworks do to the pane, done by Objective-C code: its messages are the compiler's own. Objects
/// are autoreleased unless it says otherwise.
extern "C" {
/// With `init`, `initWithFrame:` and `initWithCoder:`. The caller owes a release; null when there is no such
/// class or the initialiser refused.
id newByName(const char* className);
id newWithFrame(const char* className, CGRect frame);
id newWithCoder(const char* className);
id newCell(const char* className, std::int64_t style, id reuseIdentifier, id specifier);
/// With `initWithSpecifier:`.
id newWithSpecifier(const char* className, id specifier);
/// A view is in that superview now, or in none.
void moveView(id view, id superview);
/// What the application's window shows, and whose view every view is in; null for none. Not kept alive.
void showRootController(id controller);
/// The application's window is that object; for null, one that shows a controller. Not kept alive.
void showWindow(id window);
void putViewsInto(id controller);

/// With `alloc` alone. The caller owes a release.
id allocatedByName(const char* className);
/// The next view that is readied answers its initialiser with that object.
void answerNextInitialiserWith(id object);
/// From now on what is made of that class is refused; null for none. For the classes of the sheet for what is
/// new, of the header's card, and of what shares a file.
void refuseInitialisersOf(const char* className);
/// What a cell of StandInCell answers.
id accessoryOf(id cell);

/// Loads a controller's view when it has none.
id viewOf(id controller);
id specifiersOf(id page);
/// The array that the page's class inherits a place for.
id keptSpecifiersOf(id page);
id readValueOf(id page, id specifier);
void setValueOf(id page, id value, id specifier);
/// What the page answers for the row of that number in its first section.
double heightOfRow(id page, long row);
/// Null when the page's class has no bundle that the framework could tell.
const char* bundlePathOf(id page);

/// The user's documents are in that folder from now on; in the device's own for null.
void setDocumentsFolder(const char* path);

id titleViewOf(id controller);
/// Of the bar in the sheet that a controller has presented; null when there is none there.
id leftButtonOf(id controller);
id rightButtonOf(id controller);
/// An item of that sheet's list, and what watches for taps on it; null for nothing.
id listItemOf(id controller, unsigned index);
id recognizerOf(id view);
id menuActionOf(id controller, unsigned index);
id presentedBy(id controller);
/// Runs what a menu's row is for.
void choose(id action);
/// Takes the alert away that a controller has presented, and runs what one of its buttons is for.
void answerAlertOf(id controller, unsigned index);

/// The user chooses a file in a document picker.
void pickDocument(id picker, const char* path);
/// Whether URLs refuse from now on that access to them begins.
void refuseAccess(bool refused);
/// What the device says that it is from now on: 0 is a phone, 1 a tablet, which it is at first.
void setDeviceIdiom(long idiom);
/// From now on the object is sent "noticed:" for notifications of that name.
void observe(id observer, const char* name);
void postNotification(const char* name);
/// Counts from now on how often the object is taken from the observers, whether or not it was one.
void countRemovalsOf(id observer);
unsigned countedRemovals(void);

/// Runs the completions of animations.
void finishAnimations();
/// A finger comes down, moves or is lifted at that place of a control; the control's own class is asked.
bool touchDown(id control, double x);
bool touchMoved(id control, double x);
void touchUp(id control, double x);
void touchCancelled(id control);
void setTracking(id control, bool tracking);
void layOut(id view);

/// A message by the text of its selector, with objects, as target and action send them.
id perform(id receiver, const char* selector, id argument);
bool answersTo(id receiver, const char* selector);
id performWithTwo(id receiver, const char* selector, id first, id second);
/// With three objects and a number more, for methods of as many parameters or one less.
id performWithMore(id receiver, const char* selector, id first, id second, id third, std::int64_t number);
/// For methods of a real, an object, a boolean, of which the number is the whole register, and another real.
long performMixed(id receiver, const char* selector, double first, id second, std::int64_t third,
                  double fourth);
/// The same through the types that the class was published with, and answered as a number.
long invokeForInteger(id receiver, const char* selector, id argument);
void invokeWithDouble(id receiver, const char* selector, double argument);
double preferredHeight(id view, double width);
id loadedImage(id cell, id name, std::int64_t renderingMode);
/// `second` for methods of two parameters.
void invokeWithBooleans(id receiver, const char* selector, bool first, bool second);
bool invokeForBoolean(id receiver, const char* selector);
/// Any method's types, as Objective-C writes them, without what a platform adds; null when there is no such
/// method.
const char* typesOf(const char* className, const char* selector);
/// The names of the methods that a class adds to its superclass, ended by null.
const char** selectorsOf(const char* className);

id number(double value);
id boolean(bool value);
id wholeNumber(long long value);
id largeNumber(unsigned long long value);
id text(const char* utf8);
id listOf(id first, id second);
id emptySpecifier();

/// As the journal writes an argument.
const char* descriptionOf(id object);
unsigned countOfArray(id array);
id elementOf(id array, unsigned index);

void readFrame(id view, CGRect* frame);
void readBounds(id view, CGRect* bounds);
void setFrameOf(id view, CGRect frame);
unsigned subviewCountOf(id view);
/// Null when there are not so many.
id subviewOf(id view, unsigned index);
void sendActions(id control, unsigned long events);

void dismissPresented(id controller);
void showPage(id navigation, id page);
/// Of the sheet that a controller has presented; null when there is none there.
id fieldPresentedBy(id controller);
/// What was given to an "OpeningPage", a controller that does no more with it.
id openerOf(id page, unsigned index);
void forgetOpenersOf(id page);

/// What the pane's preferences hold; null for nothing.
id storedValue(const char* key);
void storeValue(id value, const char* key);
const char* temporaryFolder();
/// Where a file is that the pane calls so: what is under the jailbreak's root is in a folder of the tests'
/// own.
const char* placeOfFile(const char* path);
void emptyJailbreakRoot(void);

/// How many objects of exactly that class are alive.
long aliveOf(const char* className);
/// The preferences of all suites are gone.
void forgetSuites();
}

/// Of a description by `descriptionOf`.
[[nodiscard]] inline std::string described(id object) {
    return descriptionOf(object);
}

/// What an object answers to a message without an argument, described.
[[nodiscard]] inline std::string describedAnswer(id object, const char* selector) {
    return described(perform(object, selector, nullptr));
}

[[nodiscard]] inline CGRect frameOf(id view) {
    CGRect frame;
    readFrame(view, &frame);
    return frame;
}

[[nodiscard]] inline CGRect boundsOf(id view) {
    CGRect bounds;
    readBounds(view, &bounds);
    return bounds;
}
