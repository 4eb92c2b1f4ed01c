#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "aris/Catalogue.h"

/// A small repository as data, for tests of whatever reads or serves one. Ids are free, and unique among the
/// items of one sort; types are API names or plain numbers.
namespace wxbrg::test {

struct ValueText {
    std::string type;
    std::string text = {};
    std::int32_t locale = 1033;
};

struct ConnectionText {
    std::string id;
    std::string type;
    std::string target;  ///< id of a definition
};

struct DefinitionText {
    std::string id;
    std::string type = "OT_FUNC";
    std::string name = {};  ///< in locale 1033; empty: none
    std::string guid = {};  ///< empty: none
    std::string symbol = {};
    std::vector<ValueText> values = {};
    std::vector<ConnectionText> connections = {};
    std::vector<std::string> assignedModels = {};
};

struct OccurrenceText {
    std::string definition;
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::string symbol = {};
    std::vector<std::string> drawnConnections = {};  ///< ids of connections
};

struct ModelText {
    std::string id;
    std::string type = "MT_EEPC";
    std::string name = {};
    std::string guid = {};
    std::vector<ValueText> values = {};
    std::vector<OccurrenceText> occurrences = {};
};

struct GroupText {
    std::string id;
    std::string name = {};
    std::string guid = {};
    std::vector<ValueText> values = {};
    std::vector<GroupText> groups = {};
    std::vector<DefinitionText> definitions = {};
    std::vector<ModelText> models = {};
};

struct RepositoryText {
    std::string databaseName = "Demo";
    std::string userName = "system";
    std::vector<aris::Locale> locales = {{1033, "English"}, {1031, "German"}};
    GroupText root = {.id = "Group.Root"};
};

/// The repository as an ARIS XML export.
std::string AmlOf(const RepositoryText& repository);

/// An export around elements that stand straight in its root, or in its root group.
std::string AmlDocument(std::string_view inRoot);
std::string AmlGroupDocument(std::string_view inGroup);

/// The text as it stands in XML.
std::string XmlEscaped(std::string_view text);

}  // namespace wxbrg::test
