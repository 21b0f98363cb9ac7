#include "engine/data/JetLikePattern.h"

#include <QChar>

namespace sonarium {

namespace {

// One code point from UTF-8 at `i`, advancing `i`. Bytes that are not valid UTF-8 stand for
// themselves, so text written by other programs still compares instead of failing.
char32_t next(std::string_view s, size_t& i) {
    const auto b = static_cast<unsigned char>(s[i++]);
    if (b < 0x80) return b;
    int extra = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC0 ? 1 : 0;
    if (extra == 0 || i + extra > s.size()) return b;
    char32_t c = b & (0x3F >> extra);
    for (int k = 0; k < extra; ++k) {
        const auto cont = static_cast<unsigned char>(s[i + k]);
        if ((cont & 0xC0) != 0x80) return b;
        c = (c << 6) | (cont & 0x3F);
    }
    i += extra;
    return c;
}

char32_t fold(char32_t c) {
    if (c < 0x80) return (c >= 'A' && c <= 'Z') ? c + ('a' - 'A') : c;
    return QChar::toCaseFolded(c);
}

}  // namespace

std::optional<JetLikePattern> JetLikePattern::compile(std::string_view p, char32_t escape) {
    JetLikePattern pattern;
    pattern.escape_ = escape;
    auto& out = pattern.elements_;
    size_t i = 0;
    while (i < p.size()) {
        const char32_t c = next(p, i);
        if (escape != 0 && c == escape) {
            if (i >= p.size()) return std::nullopt;
            out.push_back({Element::Char, fold(next(p, i))});
        } else if (c == '*') {
            if (out.empty() || out.back().kind != Element::AnyRun) out.push_back({Element::AnyRun});
        } else if (c == '?') {
            out.push_back({Element::AnyOne});
        } else if (c == '#') {
            out.push_back({Element::Digit});
        } else if (c == '[') {
            Element e{Element::List};
            std::vector<std::pair<char32_t, char32_t>> ranges;
            bool first = true, closed = false;
            while (i < p.size()) {
                char32_t a = next(p, i);
                if (a == ']') {
                    closed = true;
                    break;
                }
                if (first && a == '!') {
                    e.negated = true;
                    first = false;
                    continue;
                }
                first = false;
                char32_t b = a;
                // "a-z" is a range; a hyphen first or last stands for itself.
                if (i + 1 < p.size() && p[i] == '-' && p[i + 1] != ']') {
                    ++i;
                    b = next(p, i);
                }
                a = fold(a);
                b = fold(b);
                ranges.push_back(a <= b ? std::pair{a, b} : std::pair{b, a});
            }
            if (!closed) return std::nullopt;
            if (ranges.empty() && !e.negated) continue;  // "[]" matches nothing at all: no element
            e.list = static_cast<int>(pattern.lists_.size());
            pattern.lists_.push_back(std::move(ranges));
            out.push_back(e);
        } else {
            out.push_back({Element::Char, fold(c)});
        }
    }
    return pattern;
}

bool JetLikePattern::single(const Element& e, char32_t c) const {
    switch (e.kind) {
    case Element::Char: return e.c == fold(c);
    case Element::AnyOne: return true;
    case Element::Digit: return c >= '0' && c <= '9';
    case Element::List: {
        const char32_t f = fold(c);
        bool in = false;
        for (const auto& [lo, hi] : lists_[e.list]) in = in || (f >= lo && f <= hi);
        return in != e.negated;
    }
    case Element::AnyRun: break;
    }
    return false;
}

// Every element but `*` takes exactly one character, so one remembered star is enough to
// backtrack: on a mismatch the last star takes one character more.
bool JetLikePattern::matches(std::string_view s) const {
    const size_t m = elements_.size();
    size_t p = 0, i = 0;
    size_t starP = m, starI = 0;
    while (i < s.size()) {
        if (p < m && elements_[p].kind == Element::AnyRun) {
            starP = p++;
            starI = i;
            continue;
        }
        size_t after = i;
        const char32_t c = next(s, after);
        if (p < m && single(elements_[p], c)) {
            ++p;
            i = after;
        } else if (starP != m) {
            p = starP + 1;
            next(s, starI);
            i = starI;
        } else {
            return false;
        }
    }
    while (p < m && elements_[p].kind == Element::AnyRun) ++p;
    return p == m;
}

}  // namespace sonarium
