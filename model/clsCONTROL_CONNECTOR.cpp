#include "model/clsCONTROL_CONNECTOR.h"

#include <functional>
#include <utility>

#include "model/Connectors.h"
#include "model/ObjectProtocol.h"
#include "model/clsPROCESS.h"
#include "output/modWPXWriter.h"
#include "support/Numbers.h"

namespace wxbrg {

namespace {

constexpr std::string_view typedCondition = "CONTROL_CONNECTOR_CONDITION";
constexpr std::string_view comparedData = "EVENT_IS_COMPARED_WITH_DATA";

/// A condition that compares the first of the data objects; empty where operator or value are missing.
std::string Comparison(const ARISObjDef& event, const Collection<ARISObjDef>& data) {
    const std::string compareOperator =
        ConvertARISName(Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(event, "EVENT_COMPARE_OPERATOR"),
                        NameKind::compareOperator, "");
    if (compareOperator.empty()) return {};
    std::string value = Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(event, "EVENT_COMPARE_VALUE");
    if (value.empty()) return {};
    if (!IsNumeric(value, DecimalSeparator())) value = "\"" + value + "\"";
    std::string name = ConvertARISName(data.Item(1)->Name(gBlock.gLocale), NameKind::memberName, "");
    // The condition is printed in apostrophes, so that those around a name are doubled.
    if (name.find(' ') != std::string::npos) name = "''" + name + "''";
    if (data.Count() > 1) WriteNote(Message::severalDataCompared, event->Name(gBlock.gLocale));
    return name + " " + compareOperator + " " + value;
}

/// Joins the conditions of the objects on a path by AND, and those of the paths by OR.
class ConditionReader : public PathReader {
  public:
    using ConditionOfObject = std::function<std::string(const ARISObjDef&)>;

    explicit ConditionReader(ConditionOfObject conditionOf) : conditionOf_(std::move(conditionOf)) {}

    bool Read(const ARISObjDef& object) override {
        const SeverityCounts notes = gBlock.gRunReport.notes;
        const SeverityCounts boxes = gBlock.gRunReport.boxes;
        const std::string condition = conditionOf_(object);
        if (!condition.empty()) ofPath_.append(ofPath_.empty() ? "" : " AND ").append(condition);
        return !condition.empty() || gBlock.gRunReport.notes != notes || gBlock.gRunReport.boxes != boxes;
    }

    /// Once two paths had a condition, one without takes over that of the last: `A OR B OR B`. Before that it
    /// adds nothing. It looks like a forgotten reset; to change it would change the definitions that sites
    /// have.
    void EndPath() override {
        const bool hasCondition = !ofPath_.empty();
        if (hasCondition) {
            last_ = std::exchange(ofPath_, {});
            ++conditions_;
        }
        if (conditions_ > 1)
            condition_.append(" OR ").append(last_);
        else if (hasCondition)
            condition_ = last_;
    }

    bool HeedsSilentPaths() const override { return conditions_ > 1; }

    const std::string& Condition() const { return condition_; }

  private:
    ConditionOfObject conditionOf_;
    std::string ofPath_;  ///< of the path being read, as far as it has been
    std::string last_;
    std::string condition_;
    std::int32_t conditions_ = 0;  ///< paths that had one
};

}  // namespace

std::string clsCONTROL_CONNECTOR::Key() const {
    return ConnectorKey(FROM_ARISObjectDefinition, TO_ARISObjectDefinition);
}

void clsCONTROL_CONNECTOR::FindARISObjectDefinitionsOnConnectorPaths() {
    Procedure("clsCONTROL_CONNECTOR.FindARISObjectDefinitionsOnConnectorPaths", [&](Frame&) {
        FindConnectorPaths(*this, "FUNCTION_SENDS_CONTROL_TO_FUNCTION");
    });
}

void clsCONTROL_CONNECTOR::SetupProperties() {
    SetupOnce("clsCONTROL_CONNECTOR.SetupProperties", SetupFinished, "CONTROL CONNECTOR", Linking, [&] {
        SetupProperty_DESCRIPTION();
        SetupProperty_Linking();
        SetupProperty_Condition();
        SetupProperty_LAYOUT();
    });
}

void clsCONTROL_CONNECTOR::SetupProperty_DESCRIPTION() {
    SetupConnectorDescription("clsCONTROL_CONNECTOR.SetupProperty_DESCRIPTION", *this,
                              gBlock.gOptUseDescriptionAttr, Message::controlPathsNotKnown);
}

void clsCONTROL_CONNECTOR::SetupProperty_Linking() {
    Procedure("clsCONTROL_CONNECTOR.SetupProperty_Linking", [&](Frame&) {
        if (!IsLoopConnector()) Linking = FromToText(FROM_ARISObjectDefinition, TO_ARISObjectDefinition);
    });
}

std::string clsCONTROL_CONNECTOR::ConditionOf(const ARISObjDef& object) {
    std::string condition;
    if (gBlock.gOptTransitionConditions) condition = GetProperty_Condition(typedCondition, object);
    if (condition.empty()) condition = GetProperty_Condition(comparedData, object);
    return condition;
}

void clsCONTROL_CONNECTOR::SetupProperty_Condition() {
    Procedure("clsCONTROL_CONNECTOR.SetupProperty_Condition", [&](Frame& frame) {
        if (!ConnectorPathsAvailable) {
            frame.Raise(Message::controlPathsNotKnown);
            return;
        }
        ConditionReader reader([&](const ARISObjDef& object) {
            return ConditionOf(object);
        });
        ReadPaths(ColPath, reader);
        if (!reader.Condition().empty()) Condition = reader.Condition();
    });
}

std::string clsCONTROL_CONNECTOR::GetProperty_Condition(std::string_view RuleName, const ARISObjDef& object) {
    return Procedure("clsCONTROL_CONNECTOR.GetProperty_Condition", [&](Frame&) -> std::string {
        if (RuleName == typedCondition) {
            if (!ARIS_ObjDef_Conforms_To_Mapping_Rule(object, "CONTROL_OBJECT")) return {};
            return Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(object, RuleName);
        }
        if (RuleName != comparedData) return {};
        Collection<ARISObjDef> data;
        Find_Related_ARIS_ObjDef_Using_Mapping_Rule(data, object, RuleName);
        return data.IsEmpty() ? std::string() : Comparison(object, data);
    });
}

void clsCONTROL_CONNECTOR::SetupProperty_LAYOUT() {
    Procedure("clsCONTROL_CONNECTOR.SetupProperty_LAYOUT", [&](Frame& frame) {
        if (gBlock.gOptUseCtrlConBendPoints) AddConnectorBendPoint(frame, *this);
    });
}

bool clsCONTROL_CONNECTOR::IsLoopConnector() const {
    return JoinsWithItself("clsCONTROL_CONNECTOR.IsLoopConnector", FROM_ARISObjectDefinition,
                           TO_ARISObjectDefinition);
}

bool clsCONTROL_CONNECTOR::IsMemberOfInvalidControlFlowLoop(clsPROCESS& Process) {
    return Procedure("clsCONTROL_CONNECTOR.IsMemberOfInvalidControlFlowLoop", [&](Frame&) {
        return ClosesLoop(Process.ControlFlow, FROM_ARISObjectDefinition, TO_ARISObjectDefinition);
    });
}

}  // namespace wxbrg
