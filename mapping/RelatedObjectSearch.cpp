#include "mapping/RelatedObjectSearch.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "mapping/DrawnItems.h"
#include "mapping/RuleSteps.h"
#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

/// One search. Without a memory it would go down every chain again and again, which takes exponential time
/// where chains part and meet. What a second visit of an object under the same rule can add is nothing but
/// the failure of nesting too deep, so each visit keeps how deep it went, and a second one only compares.
class RelatedSearch {
  public:
    RelatedSearch(Frame& frame, Collection<ARISObjDef>& result) : frame_(frame), result_(result) {}

    /// Adds what the rule leads to from the item. Returns how many levels of nesting that took, at least 1.
    std::int32_t Visit(const ARISObjDef& item, std::string_view ruleName) {
        const Key key(item->Guid(), ruleName);
        const auto [visit, isFirst] = levels_.try_emplace(key, underWay);
        if (!isFirst) {
            if (IsTooDeep(visit->second)) FailWhereTooDeep(item, ruleName);
            return visit->second;
        }
        const std::int32_t levels = Search(item, ruleName);
        levels_[key] = levels;
        return levels;
    }

  private:
    using Key = std::pair<std::string_view, std::string_view>;  ///< Guid of the object, name of the rule
    static constexpr std::int32_t underWay = 0;

    std::int32_t Search(const ARISObjDef& item, std::string_view ruleName) {
        if (gBlock.gRelatedSearchDepth >= relatedSearchLimit) Fail(item);
        ++gBlock.gRelatedSearchDepth;
        std::int32_t levels = 1;
        if (IsDrawn(item)) {
            for (const RuleStep& step : StepsOfRule(frame_, item, ruleName)) {
                if (!step.IsChained())
                    step.AddObjectsTo(result_);
                else
                    for (const ARISObjDef& next : step.Objects())
                        levels = std::max(levels, 1 + Visit(next, step.NextRule()));
            }
        }
        --gBlock.gRelatedSearchDepth;
        return levels;
    }

    /// Whether a visit at the present depth would go beyond the limit: one that is still under way turns in a
    /// circle.
    static bool IsTooDeep(std::int32_t levels) {
        return levels == underWay || gBlock.gRelatedSearchDepth + levels > relatedSearchLimit;
    }

    /// Goes down, in the order of the search, to the object at which the limit is met.
    [[noreturn]] void FailWhereTooDeep(ARISObjDef item, std::string_view ruleName) {
        while (gBlock.gRelatedSearchDepth < relatedSearchLimit) {
            ++gBlock.gRelatedSearchDepth;
            std::tie(item, ruleName) = FirstTooDeepBehind(item, ruleName);
        }
        Fail(item);
    }

    std::pair<ARISObjDef, std::string_view> FirstTooDeepBehind(const ARISObjDef& item,
                                                               std::string_view ruleName) {
        for (const RuleStep& step : StepsOfRule(frame_, item, ruleName)) {
            if (!step.IsChained()) continue;
            for (const ARISObjDef& next : step.Objects())
                if (IsTooDeep(levels_.at(Key(next->Guid(), step.NextRule())))) return {next, step.NextRule()};
        }
        throw Failure(FailureKind::invalidCall);
    }

    [[noreturn]] void Fail(const ARISObjDef& item) {
        frame_.Raise(Message::searchTooDeep, item->Name(gBlock.gLocale), item->Type());
        throw Failure(FailureKind::invalidCall);
    }

    Frame& frame_;
    Collection<ARISObjDef>& result_;
    std::map<Key, std::int32_t> levels_;
};

}  // namespace

Collection<ARISObjDef>& Find_Related_ARIS_ObjDef_Using_Mapping_Rule(Collection<ARISObjDef>& result,
                                                                    const ARISObjDef& item,
                                                                    std::string_view ruleName) {
    Procedure("modMappingRule.Find_Related_ARIS_ObjDef_Using_Mapping_Rule", [&](Frame& frame) {
        RelatedSearch(frame, result).Visit(item, ruleName);
    });
    return result;
}

Collection<ARISObjDef>& Find_Related_ARIS_ObjDef(Collection<ARISObjDef>& result, const ARISObjDef& item,
                                                 std::int32_t cnxKind, std::int32_t cnxTypeNum,
                                                 std::int32_t targetObjTypeNum) {
    Procedure("modMappingRule.Find_Related_ARIS_ObjDef", [&](Frame& frame) {
        if (!IsDrawn(item)) return;
        const ARISCxnDefList list =
            item->CxnListFilter(cnxKind, "", gBlock.gLocale, cnxTypeNum, connectionFilterConstant);
        const std::int16_t last = LastPosition(list);
        ARISObjDef other;
        for (std::int32_t i = 0; i <= last; ++i) {
            const ARISCxnDef connection = list.Get(i);
            if (!IsDrawn(connection)) continue;
            switch (cnxKind) {
                case CxnKind::incoming:
                    other = connection->SourceObjDef();
                    break;
                case CxnKind::outgoing:
                    other = connection->TargetObjDef();
                    break;
                default:
                    frame.Raise(Message::unknownConnectionKind, std::to_string(cnxKind));
            }
            if (other->TypeNum() == targetObjTypeNum && IsDrawn(other)) result.AddNew(other, other->Guid());
        }
    });
    return result;
}

}  // namespace wxbrg
