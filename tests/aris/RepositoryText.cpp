#include "tests/aris/RepositoryText.h"

#include "support/Text.h"

namespace wxbrg::test {

namespace {

/// Writes a repository element by element.
class AmlText {
  public:
    std::string Take() { return std::move(text_); }

    void Prolog() {
        Add("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<!DOCTYPE AML SYSTEM \"ARIS-Export.dtd\" [\n"
            "  <!ENTITY LocaleId.DEde \"1031\">\n"
            "  <!ENTITY LocaleId.USen \"1033\">\n"
            "]>\n<AML>\n");
    }
    void Add(std::string_view text) { text_.append(text); }
    void Epilog() { Add("</AML>\n"); }

    void Header(const RepositoryText& repository) {
        Start("Header-Info");
        Attribute("DatabaseName", repository.databaseName);
        Attribute("UserName", repository.userName);
        Add("/>\n");
        for (const aris::Locale& locale : repository.locales) {
            Start("Language");
            Attribute("LocaleId", std::to_string(locale.number));
            Add("><LanguageName>" + XmlEscaped(locale.name) + "</LanguageName></Language>\n");
        }
    }

    void Group(const GroupText& group) {
        Start("Group");
        Attribute("Group.ID", group.id);
        Add(">\n");
        Common(group.guid, group.name, group.values);
        for (const GroupText& inner : group.groups) Group(inner);
        for (const DefinitionText& definition : group.definitions) Definition(definition);
        for (const ModelText& model : group.models) Model(model);
        Add("</Group>\n");
    }

  private:
    void Start(std::string_view element) { Add(std::string("<").append(element)); }
    void Attribute(std::string_view name, std::string_view value) {
        Add(" ");
        Add(name);
        Add("=\"" + XmlEscaped(value) + "\"");
    }
    void Value(const ValueText& value) {
        Start("AttrDef");
        Attribute("AttrDef.Type", value.type);
        Add("><AttrValue");
        Attribute("LocaleId", std::to_string(value.locale));
        Add(">" + XmlEscaped(value.text) + "</AttrValue></AttrDef>\n");
    }
    void Common(const std::string& guid, const std::string& name, const std::vector<ValueText>& values) {
        if (!guid.empty()) Add("<GUID>" + XmlEscaped(guid) + "</GUID>\n");
        if (!name.empty()) Value({"AT_NAME", name});
        for (const ValueText& value : values) Value(value);
    }
    void Definition(const DefinitionText& definition) {
        Start("ObjDef");
        Attribute("ObjDef.ID", definition.id);
        Attribute("TypeNum", definition.type);
        if (!definition.symbol.empty()) Attribute("SymbolNum", definition.symbol);
        std::string links;
        for (const std::string& model : definition.assignedModels) links.append(model).append(" ");
        if (!links.empty()) Attribute("LinkedModels.IdRefs", links);
        Add(">\n");
        Common(definition.guid, definition.name, definition.values);
        for (const ConnectionText& connection : definition.connections) {
            Start("CxnDef");
            Attribute("CxnDef.ID", connection.id);
            Attribute("CxnDef.Type", connection.type);
            Attribute("ToObjDef.IdRef", connection.target);
            Add("/>\n");
        }
        Add("</ObjDef>\n");
    }
    void Model(const ModelText& model) {
        Start("Model");
        Attribute("Model.ID", model.id);
        Attribute("Model.Type", model.type);
        Add(">\n");
        Common(model.guid, model.name, model.values);
        for (const OccurrenceText& occurrence : model.occurrences) Occurrence(occurrence);
        Add("</Model>\n");
    }
    void Occurrence(const OccurrenceText& occurrence) {
        Start("ObjOcc");
        Attribute("ObjDef.IdRef", occurrence.definition);
        if (!occurrence.symbol.empty()) Attribute("SymbolNum", occurrence.symbol);
        Add("><Position");
        Attribute("Pos.X", std::to_string(occurrence.x));
        Attribute("Pos.Y", std::to_string(occurrence.y));
        Add("/>");
        for (const std::string& connection : occurrence.drawnConnections) {
            Start("CxnOcc");
            Attribute("CxnDef.IdRef", connection);
            Add("/>");
        }
        Add("</ObjOcc>\n");
    }

    std::string text_;
};

}  // namespace

std::string XmlEscaped(std::string_view text) {
    std::string escaped = Replace(Replace(Replace(text, "&", "&amp;"), "<", "&lt;"), "\"", "&quot;");
    return Replace(Replace(escaped, "\r", "&#13;"), "\n", "&#10;");
}

std::string AmlOf(const RepositoryText& repository) {
    AmlText aml;
    aml.Prolog();
    aml.Header(repository);
    aml.Group(repository.root);
    aml.Epilog();
    return aml.Take();
}

std::string AmlDocument(std::string_view inRoot) {
    AmlText aml;
    aml.Prolog();
    aml.Add(inRoot);
    aml.Epilog();
    return aml.Take();
}

std::string AmlGroupDocument(std::string_view inGroup) {
    std::string group = "<Group Group.ID=\"Group.Root\">";
    return AmlDocument(group.append(inGroup).append("</Group>"));
}

}  // namespace wxbrg::test
