#include "quillet/platform/CodePage.h"

#include <unicode/ucnv.h>

#include <memory>
#include <string>

#include "quillet/frame/Failure.h"

namespace quillet {

namespace {

struct ConverterCloser {
    void operator()(UConverter* c) const noexcept { ucnv_close(c); }
};
using Converter = std::unique_ptr<UConverter, ConverterCloser>;

// One converter per code page per thread: opening one costs far more than a
// conversion of a short text.
UConverter* converterFor(Long codePage) {
    thread_local Long openPage = -1;
    thread_local Converter converter;
    if (openPage != codePage || !converter) {
        const std::string name = "windows-" + std::to_string(codePage);
        UErrorCode status = U_ZERO_ERROR;
        Converter c(ucnv_open(name.c_str(), &status));
        if (U_FAILURE(status) || !c) throw Failure(errInvalidCall, "unknown code page " + std::to_string(codePage));
        status = U_ZERO_ERROR;
        ucnv_setSubstChars(c.get(), "?", 1, &status);
        converter = std::move(c);
        openPage = codePage;
    }
    ucnv_reset(converter.get());
    return converter.get();
}

}  // namespace

std::string toCodePage(StringView text, Long codePage) {
    UConverter* c = converterFor(codePage);
    if (text.empty()) return {};
    std::string out(static_cast<std::size_t>(UCNV_GET_MAX_BYTES_FOR_STRING(text.size(), ucnv_getMaxCharSize(c))), '\0');
    UErrorCode status = U_ZERO_ERROR;
    const int32_t n = ucnv_fromUChars(c, out.data(), static_cast<int32_t>(out.size()), text.data(),
                                      static_cast<int32_t>(text.size()), &status);
    if (U_FAILURE(status)) throw Failure(errPlatform, "code page conversion failed");
    out.resize(static_cast<std::size_t>(n));
    return out;
}

String fromCodePage(std::string_view bytes, Long codePage) {
    UConverter* c = converterFor(codePage);
    if (bytes.empty()) return {};
    String out(bytes.size() * 2, u'\0');
    UErrorCode status = U_ZERO_ERROR;
    const int32_t n = ucnv_toUChars(c, out.data(), static_cast<int32_t>(out.size()), bytes.data(),
                                    static_cast<int32_t>(bytes.size()), &status);
    if (U_FAILURE(status)) throw Failure(errPlatform, "code page conversion failed");
    out.resize(static_cast<std::size_t>(n));
    return out;
}

}  // namespace quillet
