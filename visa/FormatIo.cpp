#include "FormatIo.h"

#include <cctype>
#include <cstring>

namespace {
bool isSpace(char c)
{
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}

struct Conversion
{
    size_t width = 0; // 0: none given
    char type = 0;
    const char* next = nullptr;
};

// Parses the conversion after a '%'; false for a malformed one.
bool parseConversion(const char* p, Conversion& conversion)
{
    size_t width = 0;
    bool hasWidth = false;
    while (std::isdigit(static_cast<unsigned char>(*p))) {
        if (width > 100000000)
            return false;
        width = width * 10 + size_t(*p - '0');
        hasWidth = true;
        ++p;
    }
    if (*p == '\0')
        return false;
    if (hasWidth && width == 0)
        return false;
    conversion.width = width;
    conversion.type = *p;
    conversion.next = p + 1;
    return true;
}

void copyBounded(char* target, size_t width, const char* data, size_t length)
{
    const size_t n = length < width ? length : width;
    std::memcpy(target, data, n);
    if (n < width)
        target[n] = '\0';
}
} // namespace

ViStatus FormatIo::format(const char* fmt, va_list args, std::string& out)
{
    out.clear();
    if (!fmt)
        return VI_ERROR_INV_FMT;
    for (const char* p = fmt; *p; ++p) {
        if (*p != '%') {
            out += *p;
            continue;
        }
        if (p[1] == '%') {
            out += '%';
            ++p;
            continue;
        }
        Conversion conversion;
        if (!parseConversion(p + 1, conversion))
            return VI_ERROR_INV_FMT;
        if (conversion.width != 0)
            return VI_ERROR_NSUP_FMT;
        if (conversion.type == 'd') {
            out += std::to_string(va_arg(args, int));
        } else if (conversion.type == 's') {
            const char* text = va_arg(args, const char*);
            if (!text)
                return VI_ERROR_INV_PARAMETER;
            out += text;
        } else {
            return VI_ERROR_NSUP_FMT;
        }
        p = conversion.next - 1;
    }
    return VI_SUCCESS;
}

ViStatus FormatIo::validateScan(const char* fmt, bool& needsInput)
{
    needsInput = false;
    if (!fmt)
        return VI_ERROR_INV_FMT;
    for (const char* p = fmt; *p; ++p) {
        if (*p != '%')
            continue;
        if (p[1] == '%') {
            ++p;
            continue;
        }
        Conversion conversion;
        if (!parseConversion(p + 1, conversion))
            return VI_ERROR_INV_FMT;
        if (conversion.type != 't' && conversion.type != 's')
            return VI_ERROR_NSUP_FMT;
        needsInput = true;
        p = conversion.next - 1;
    }
    return VI_SUCCESS;
}

ViStatus FormatIo::scan(const char* fmt, va_list args, const std::string& input)
{
    bool needsInput = false;
    const ViStatus valid = validateScan(fmt, needsInput);
    if (valid != VI_SUCCESS)
        return valid;
    size_t pos = 0;
    for (const char* p = fmt; *p; ++p) {
        if (isSpace(*p)) {
            while (pos < input.size() && isSpace(input[pos]))
                ++pos;
            continue;
        }
        if (*p != '%' || p[1] == '%') {
            const char literal = *p;
            if (literal == '%')
                ++p;
            if (pos >= input.size() || input[pos] != literal)
                return VI_SUCCESS; // the input stops matching: the rest stays unassigned
            ++pos;
            continue;
        }
        Conversion conversion;
        parseConversion(p + 1, conversion);
        const size_t width = conversion.width ? conversion.width : kDefaultWidth;
        char* target = va_arg(args, char*);
        if (!target)
            return VI_ERROR_INV_PARAMETER;
        if (conversion.type == 't') {
            copyBounded(target, width, input.data() + pos, input.size() - pos);
            pos = input.size();
        } else {
            while (pos < input.size() && isSpace(input[pos]))
                ++pos;
            const size_t start = pos;
            while (pos < input.size() && !isSpace(input[pos]))
                ++pos;
            copyBounded(target, width, input.data() + start, pos - start);
        }
        p = conversion.next - 1;
    }
    return VI_SUCCESS;
}
