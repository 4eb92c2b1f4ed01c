#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/fixture/FakeRepository.h"

/// Repositories in memory of a shape that makes a step of the export work hard.
namespace wxbrg::bench {

using test::FakeObject;

/// A number with zeros in front, so that names sort as numbers do.
std::string Numbered(const std::string& name, std::int64_t number);

/// One process model, and the connections that the default rules know.
class Drawing {
  public:
    Drawing();

    Ref<FakeObject> Function(std::int64_t number);
    Ref<FakeObject> RuleObject();
    Ref<FakeObject> EntityType(std::int64_t number);

    // Control and data flow between objects that are there.
    void FunctionToFunction(Ref<FakeObject> from, Ref<FakeObject> to) { repository.Connect(from, 118, to); }
    void FunctionToRule(Ref<FakeObject> from, Ref<FakeObject> to) { repository.Connect(from, 116, to); }
    void RuleToRule(Ref<FakeObject> from, Ref<FakeObject> to) { repository.Connect(from, 54, to); }
    void RuleToFunction(Ref<FakeObject> from, Ref<FakeObject> to) { repository.Connect(from, 43, to); }
    void Writes(Ref<FakeObject> function, Ref<FakeObject> data) { repository.Connect(function, 50, data); }
    void Reads(Ref<FakeObject> function, Ref<FakeObject> data) { repository.Connect(data, 49, function); }

    /// A database whose models are handed over and not looked for.
    aris::Automation& Automation() { return automation_; }

    test::FakeRepository repository;
    Ref<test::FakeGroup> group;
    Ref<test::FakeModel> process;

  private:
    class OneDatabase final : public aris::Automation,
                              public aris::Application,
                              public aris::ReportComponent {
      public:
        ARISApplication CreateObject(std::string_view) override { return this; }
        ARISReportComponent GetComponent(std::string_view) override { return this; }
        ARISDatabase OpenDatabase(std::string_view, std::string_view, std::string_view, std::string_view,
                                  std::string_view) override {
            return &database_;
        }

      private:
        test::FakeDatabase database_{"modeller"};
    };

    OneDatabase automation_;
};

/// Two functions, the ends of a network of rule objects.
struct Ends {
    Ref<FakeObject> from;
    Ref<FakeObject> to;
    Ref<FakeObject> top;  ///< the one rule object behind `from`, where there is one
};

/// `pairs` times two rule objects side by side, with one before, between and behind them: 2 to the power of
/// `pairs` ways.
Ends AddDiamonds(Drawing& drawing, std::int64_t pairs);

/// As many rule objects in a row behind the first function of a network. A search that goes down the row is
/// nested one level deeper with each.
void AddRowOfRuleObjects(Drawing& drawing, const Ends& ends, std::int64_t count);

/// Ten rows of `width` rule objects, each joined to all of the next row.
Ends AddGrid(Drawing& drawing, std::int64_t width);

/// As many functions, each of which leads to the one before it: connectors are found in the order in which
/// every test for a loop has the longest walk.
void AddBackwardChain(Drawing& drawing, std::int64_t functions);

/// An organization in the process model, whose manager is the first of as many persons, each the substitute
/// of the one before. Persons are drawn in other models, `personsOfModel` in each.
void AddStaffChain(Drawing& drawing, std::int64_t persons);
inline constexpr std::int64_t personsOfModel = 30000;

}  // namespace wxbrg::bench
