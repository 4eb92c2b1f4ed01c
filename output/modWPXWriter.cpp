#include "output/modWPXWriter.h"

#include "mapping/RuleLookups.h"
#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

/// The line of one value: the object's type, its name in quotes, and the value.
std::string AttributeLine(const ARISObjDef& object, std::string_view value) {
    return "\r\n" + Indent(3) + std::string(object->Type()) + " '" + object->Name(gBlock.gLocale) + "' " +
           std::string(value);
}

std::string AttributeByRule(const ARISObjDef& object, std::string_view ruleName) {
    const std::string value = Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(object, ruleName);
    return value.empty() ? std::string() : AttributeLine(object, value);
}

std::string AllAttributes(const ARISObjDef& object) {
    std::string lines;
    const ARISAttrList attributes = object->AttrList(gBlock.gLocale);
    for (std::int32_t i = 0; i < attributes.Count(); ++i) {
        const ARISAttr attribute = attributes.Get(i);
        if (!attribute->IsMaintained()) continue;
        const std::string value = attribute->GetValue(gBlock.gOptRemoveLineBreaks);
        if (value.empty()) continue;
        lines += AttributeLine(object, "(" + std::string(attribute->Type()) + "): " + value);
    }
    return lines;
}

/// Gathers the lines of all objects.
class AttributeReader : public PathReader {
  public:
    explicit AttributeReader(std::string_view ruleName) : ruleName_(ruleName) {}

    bool Read(const ARISObjDef& object) override {
        if (object->OccList().Count() == 0) return false;
        const std::string lines =
            ruleName_.empty() ? AllAttributes(object) : AttributeByRule(object, ruleName_);
        lines_ += lines;
        return !lines.empty();
    }
    void EndPath() override {}
    bool HeedsSilentPaths() const override { return false; }

    const std::string& Lines() const { return lines_; }

  private:
    std::string_view ruleName_;
    std::string lines_;
};

}  // namespace

std::string Indent(std::int32_t Level) {
    return std::string(static_cast<std::size_t>(Level), '\t');
}

std::string SetupPrintingOfConnectorAttribute(const PathCollection& ColPath, std::string_view RuleName) {
    return Procedure("modWPXWriter.SetupPrintingOfConnectorAttribute", [&](Frame&) {
        AttributeReader reader(RuleName);
        ReadPaths(ColPath, reader);
        return reader.Lines();
    });
}

}  // namespace wxbrg
