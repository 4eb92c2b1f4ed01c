#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "run/Messages.h"

namespace wxbrg {

/// A line of the log: the message number such as "WXB03110I " and the text with its arguments.
/// `Severity` is 16, 32, 48 or 64.
std::string GetNLSMessage(std::int16_t Severity, std::int32_t ID, std::string_view S1, std::string_view S2,
                          std::string_view S3, std::string_view S4);

/// Builds the line of a note, counts it by its severity and writes it to the log at once.
void WriteNoteLine(std::int32_t number, std::int16_t severity, const MessageArguments& arguments);

/// The same for a note by its name.
template <class... Texts>
void WriteNote(MessageWith<sizeof...(Texts)> note, const Texts&... texts) {
    WriteNoteLine(note.Number(), note.Severity(), {std::string_view(texts)...});
}

}  // namespace wxbrg
