// What the compiler signs pointers for, each of it used once: where a signature is wrong, the processor
// refuses the pointer. Run by the image loader beside this file.

#include "ClassRecordCheck.h"
#include "Shape.h"

#include <array>
#include <functional>
#include <memory>
#include <typeinfo>
#include <vector>

/// Run first. \returns how many checks failed, each of which has been told to `reportFailedCheck`
extern "C" [[gnu::visibility("default")]] int runChecks();

/// The loader's.
extern "C" void reportFailedCheck(const char* check);

namespace {

volatile int two = 2; ///< keeps calls from being worked out while compiling

class Counter {
public:
    virtual ~Counter() { ++ended; }

    virtual int next() = 0;

    virtual int step() { return 1; }

    static inline int ended = 0;
};

class Doubling final : public Counter {
public:
    explicit Doubling(int value) : value_(value) {}

    int next() override { return value_ *= two; }

    int step() override { return value_; }

private:
    int value_;
};

class Named {
public:
    virtual ~Named() = default;

    virtual int length() { return 5; }

    int padding = 1;
};

class NamedCounter final : public virtual Named, public Counter {
public:
    int next() override { return 20; }

    int length() override { return 6; }
};

[[gnu::noinline]] Counter* makeCounter(int kind) {
    if (kind == two)
        return new NamedCounter;
    return new Doubling(kind);
}

bool virtualFunctions() {
    const std::unique_ptr<Counter> counter(makeCounter(3));
    return counter->next() == 6 && counter->next() == 12 && counter->step() == 12;
}

bool virtualBases() {
    const std::unique_ptr<Counter> counter(makeCounter(2));
    // NOLINTNEXTLINE(*-static-cast-downcast): the other cast is a function of a library
    Named* const named = static_cast<NamedCounter*>(counter.get());
    return counter->next() == 20 && counter->step() == 1 && named->length() == 6 && named->padding == 1;
}

bool virtualDestructors() {
    const auto before = Counter::ended;
    delete makeCounter(2);
    delete makeCounter(3);
    return Counter::ended == before + 2;
}

int (Counter::* volatile memberFunction)() = &Counter::step;

bool memberFunctions() {
    const std::unique_ptr<Counter> counter(makeCounter(4));
    return (counter.get()->*memberFunction)() == 4;
}

int one() {
    return 1;
}

int three() {
    return 3;
}

struct NamedFunction {
    const char* name;
    int (*function)();
};

const std::array<NamedFunction, 2> namedFunctions{{{"one", one}, {"three", three}}};
int (*volatile functionVariable)() = three;

bool functionTables() {
    auto sum = 0;
    for (const auto& named : namedFunctions)
        sum = sum * 10 + named.function() + static_cast<int>(named.name[0] == 'o');
    return sum == 23 && functionVariable() == 3;
}

bool functionObjects() {
    const auto factor = two;
    std::function<int(int)> times = [factor](int number) { return factor * number; };
    const auto copy = times;
    times = nullptr;
    return !times && copy(21) == 42;
}

int (^const globalBlock)(int) = ^(int number) {
  return number + 100;
};

bool blocks() {
    const auto added = two;
    int (^const block)(int) = ^(int number) {
      return number + added;
    };
    return block(1) == 3 && globalBlock(1) == 101;
}

bool sharedObjects() {
    const auto before = Counter::ended;
    std::vector<std::shared_ptr<Counter>> counters;
    counters.reserve(5);
    auto sum = 0;
    for (auto i = 0; i < 5; ++i)
        counters.push_back(std::make_shared<Doubling>(i));
    for (const auto& counter : counters)
        sum += counter->next();
    counters.clear();
    return sum == 20 && Counter::ended == before + 5;
}

const int initialised = makeCounter(4)->next();

bool initialisers() {
    return initialised == 8;
}

bool classesOfSeveralObjects() {
    const std::unique_ptr<Shape> here(new Polygon<3>);
    const std::unique_ptr<Shape> elsewhere(makeTriangleElsewhere());
    const std::unique_ptr<Shape> square(new Polygon<4>);
    const Shape& triangle = *here;
    const Shape& otherTriangle = *elsewhere;
    return triangle.sides() == 3 && otherTriangle.sides() == 3 && square->sides() == 4 &&
           typeid(triangle) == typeid(otherTriangle);
}

struct Check {
    const char* name;
    bool (*passes)();
};

const std::array<Check, 11> checks{{{"virtual functions", virtualFunctions},
                                    {"virtual bases", virtualBases},
                                    {"virtual destructors", virtualDestructors},
                                    {"member functions", memberFunctions},
                                    {"function tables", functionTables},
                                    {"function objects", functionObjects},
                                    {"blocks", blocks},
                                    {"shared objects", sharedObjects},
                                    {"initialisers", initialisers},
                                    {"classes of several objects", classesOfSeveralObjects},
                                    {"class record", classRecordIsSound}}};

} // namespace

int runChecks() {
    auto failures = 0;
    for (const auto& check : checks) {
        if (check.passes())
            continue;
        reportFailedCheck(check.name);
        ++failures;
    }
    return failures;
}
