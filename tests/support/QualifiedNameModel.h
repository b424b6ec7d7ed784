// The grammar of qualified names once more, as a machine that looks at one code unit at a time, to compare with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace test_support {

struct QualifiedNameModel
{
    // Empty, or the last eight digits of the error.
    std::string error;
    std::vector<std::u16string> components;
};

// `text` has no white space around it.
inline QualifiedNameModel ReadQualifiedName(std::u16string_view text)
{
    enum
    {
        Start,
        AfterDot,
        AfterOpen,
        Body,
        AfterBracket
    } state = Start;
    QualifiedNameModel result;
    std::u16string body;
    auto const failed = [&result](char const * error) {
        result.error = error;
        return result;
    };
    for (char16_t const c : text) {
        switch (state) {
        case Start:
        case AfterDot:
            if (c != u'[')
                return failed(state == Start ? "5F1F5407" : "5F1F5408");
            state = AfterOpen;
            body.clear();
            break;
        case AfterOpen:
        case Body:
            state = c == u']' ? AfterBracket : Body;
            if (c != u']')
                body += c;
            break;
        case AfterBracket:
            if (c == u']') {
                body += c;
                state = Body;
                break;
            }
            result.components.push_back(body);
            if (c != u'.')
                return failed("5F1F540B");
            state = AfterDot;
        }
    }
    switch (state) {
    case Start: break;
    case AfterDot: return failed("5F1F540C");
    case AfterOpen: return failed("5F1F5409");
    case Body: return failed("5F1F540A");
    case AfterBracket: result.components.push_back(body);
    }
    return result;
}

}  // namespace test_support
