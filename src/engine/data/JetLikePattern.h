#pragma once
// The dialect's `Like`: `*` any run of characters, `?` one character, `#` one digit, `[abc]`
// `[a-z]` `[!abc]` one character of (or not of) a list, `[*]` a wildcard as itself, `[]`
// nothing. Letters compare without regard to case, accented ones too ("É" matches "é"), but
// accents count ("e" does not match "é"). Works on UTF-8 as SQLite hands it over, without
// building strings, since a filter runs it once per row.
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace sonarium {

class JetLikePattern {
public:
    // Empty when the pattern is not valid (a "[" that does not close). `escape`, when not 0,
    // makes the character after it stand for itself.
    static std::optional<JetLikePattern> compile(std::string_view utf8, char32_t escape = 0);

    bool matches(std::string_view utf8) const;
    char32_t escape() const { return escape_; }

private:
    struct Element {
        enum Kind { Char, AnyOne, Digit, List, AnyRun } kind;
        char32_t c = 0;  // Char: the folded character
        int list = -1;   // List: index into lists_
        bool negated = false;
    };
    bool single(const Element& e, char32_t c) const;

    std::vector<Element> elements_;
    std::vector<std::vector<std::pair<char32_t, char32_t>>> lists_;  // folded ranges
    char32_t escape_ = 0;
};

}  // namespace sonarium
