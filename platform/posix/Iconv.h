#pragma once

#include <iconv.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace wxbrg {

/// One direction of the system's character conversion, with the state that some character sets need between
/// characters.
class Iconv {
  public:
    /// What a conversion came to.
    struct Outcome {
        std::size_t converted;  ///< bytes that are dealt with: all, or those before the first that cannot be
        bool incomplete;        ///< the bytes that remain are the beginning of a character
    };

    /// Takes character sets by the system's names. Throws `std::invalid_argument` when it does not know them,
    /// `std::system_error` when it lacks what loading the conversion takes.
    Iconv(const char* to, const char* from);
    ~Iconv() { iconv_close(conversion_); }
    Iconv(const Iconv&) = delete;
    Iconv& operator=(const Iconv&) = delete;

    /// Appends to `result` what `bytes` stand for, up to the first that cannot be converted.
    Outcome Convert(std::string_view bytes, std::string& result);

    /// Appends what the conversion still holds back, and puts it into its first state.
    void Finish(std::string& result);

  private:
    iconv_t conversion_;
};

}  // namespace wxbrg
