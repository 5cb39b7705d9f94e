#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// One method, as somebody sends, answers or declares it.
struct Signature {
    std::string message; ///< "-[UIView setFrame:]"
    std::string types;   ///< "v@:{CGRect={CGPoint=dd}{CGSize=dd}}"
};

/// The declared signatures: the file device/stubs/signatures.txt. Types are compared as both runtimes can
/// tell them: without what GNU's adds, and with all pointers but those to texts and objects alike.
class SignatureTable {
public:
    /// A line that cannot be understood is a mismatch of its own.
    explicit SignatureTable(std::string_view text);

    [[nodiscard]] static SignatureTable fromFile(const std::string& path);

    /// What is wrong with methods that are sent or answered; each line names the method. A method may be
    /// declared by a base of the class that is named.
    [[nodiscard]] std::vector<std::string> mismatches(const std::vector<Signature>& methods);

    /// What is wrong with selectors that are sent to objects whose class the sender does not know: each is to
    /// be declared by some class.
    [[nodiscard]] std::vector<std::string> undeclared(const std::vector<std::string>& selectors);

    /// What is declared although nothing that was asked about so far needs it.
    [[nodiscard]] std::vector<std::string> unused() const;

    /// The declared base of a class; empty for the root and for a class that is not declared.
    [[nodiscard]] std::string baseOf(const std::string& className) const;

    [[nodiscard]] std::vector<Signature> all() const;

private:
    void read(const std::string& line);
    [[nodiscard]] std::string mismatch(const Signature& method);
    /// The message as the class or the nearest of its bases declares it; empty when none does.
    [[nodiscard]] std::string declarationOf(const std::string& message) const;
    [[nodiscard]] std::string similarTo(const std::string& message) const;

    std::map<std::string, std::string> bases_;
    std::map<std::string, std::string> types_;
    std::set<std::string> used_;
    std::vector<std::string> faults_;
};

/// "-[UIView setFrame:]" without its first part and its last: the class, and the selector.
[[nodiscard]] std::string classIn(std::string_view message);
[[nodiscard]] std::string selectorIn(std::string_view message);
