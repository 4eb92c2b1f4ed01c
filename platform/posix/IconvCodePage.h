#pragma once

#include <functional>
#include <optional>

#include "platform/CodePage.h"
#include "platform/posix/Iconv.h"

namespace wxbrg {

/// A code page by its Windows number, converted by the system's iconv. A character is never written as a
/// similar one. Code page 65001 is UTF-8: it lacks nothing, and bytes that are no UTF-8 become U+FFFD.
class IconvCodePage : public CodePage {
  public:
    /// Throws `std::invalid_argument`, with a text for the user, for a code page that is not supported.
    /// Throws `std::system_error` where the system cannot load the conversion at present.
    explicit IconvCodePage(std::uint32_t number);

    /// Whether the system knows the code page, and files can be in it: the letters and digits of ASCII, the
    /// blank and the line breaks are those of ASCII. Throws `std::system_error` where the system cannot say
    /// at present.
    static bool IsSupported(std::uint32_t number);

    std::uint32_t Number() const override { return number_; }
    std::string ToBytes(std::string_view text) override;
    std::string ToText(std::string_view bytes) override;
    std::uint64_t LackingCharacters() const override { return lacking_; }

  private:
    /// Deals with the start of a text that cannot be converted; returns how many bytes of it that was.
    using Unconvertible = std::function<std::size_t(std::string_view rest)>;

    static void Convert(Iconv& conversion, std::string_view from, std::string& result,
                        const Unconvertible& unconvertible);
    void AppendUntagged(std::string_view text, std::string& result);
    void AppendTag(std::string_view tag, std::string& result);
    void AppendLacking(std::string& result);

    std::uint32_t number_;
    std::optional<Iconv> encoder_;  ///< from UTF-8; none for code page 65001
    std::optional<Iconv> decoder_;  ///< to UTF-8; none for code page 65001
    std::uint64_t lacking_ = 0;
};

}  // namespace wxbrg
