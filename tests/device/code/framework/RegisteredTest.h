#pragma once

/// A test of the bundle. All of them are constants of the sources that they are in, and known once the bundle
/// is loaded.
class RegisteredTest {
public:
    using Body = void();

    RegisteredTest(const char* suite, const char* name, Body* body);

    /// The first of all; null when there is none.
    [[nodiscard]] static const RegisteredTest* first();

    [[nodiscard]] const RegisteredTest* next() const { return next_; }

    [[nodiscard]] const char* suite() const { return suite_; }

    [[nodiscard]] const char* name() const { return name_; }

    void run() const { body_(); }

private:
    const char* const suite_;
    const char* const name_;
    Body* const body_;
    const RegisteredTest* const next_;
};

/// The program's that loads the bundle: the test that is being run has failed.
extern "C" void reportFailure(const char* file, int line, const char* check);
