#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace wxbrg::bench {

/// An attribute in both languages of a generated export.
struct TwoTexts {
    std::string german;
    std::string english;
};

/// A connection that a generated definition is the source of.
struct GeneratedConnection {
    std::string id;
    std::string_view type;
    std::string target;
};

/// Writes the elements of an export in the form that ARIS gives them: an attribute a line, styled text in two
/// languages whose numbers are entities, and next to what an export needs what it does not.
class AmlWriter {
  public:
    explicit AmlWriter(std::ostream& out) : out_(out) {}

    void Begin(std::string_view databaseName);
    /// An embedded document of `bytes` bytes as base64.
    void EmbeddedDocument(std::uint64_t bytes);
    void End();

    void BeginGroup(std::string_view id, const TwoTexts& name);
    void EndGroup();

    void Definition(std::string_view id, std::string_view type, std::string_view symbol, const TwoTexts& name,
                    const TwoTexts& description, std::string_view assignedModel,
                    const std::vector<GeneratedConnection>& connections);

    void BeginModel(std::string_view id, std::string_view type, const TwoTexts& name);
    void BeginOccurrence(std::string_view id, std::string_view definition, std::string_view symbol, int x,
                         int y);
    void ConnectionOccurrence(std::string_view id, std::string_view connection, std::string_view target,
                              int x, int y);
    void EndOccurrence();
    void EndModel();

  private:
    void Guid(std::string_view id);
    void PlainAttribute(std::string_view type, std::string_view text);
    void StyledAttribute(std::string_view type, const TwoTexts& texts);
    void StyledValue(std::string_view localeEntity, std::string_view text);

    std::ostream& out_;
};

/// The text as it stands in an XML attribute.
std::string Escaped(std::string_view text);

/// A number that looks like chance and is the same for the same text everywhere.
std::uint64_t Scattered(std::string_view text);

}  // namespace wxbrg::bench
