#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace wxbrg {

/// A line of the log: the message number such as "WXB03110I " and the text with its arguments.
/// `Severity` is 16, 32, 48 or 64.
std::string GetNLSMessage(std::int16_t Severity, std::int32_t ID, std::string_view S1, std::string_view S2,
                          std::string_view S3, std::string_view S4);

/// Builds a line of the log and writes it at once.
void WriteNote(std::int16_t Severity, std::int32_t ID, std::string_view S1 = {}, std::string_view S2 = {},
               std::string_view S3 = {}, std::string_view S4 = {});

}  // namespace wxbrg
