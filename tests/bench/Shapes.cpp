#include "tests/bench/Shapes.h"

#include "mapping/ArisTypes.h"

namespace wxbrg::bench {

namespace {
constexpr std::int32_t processType = 13;
constexpr std::int32_t organizationChartType = 1;
constexpr std::int32_t managesOrganization = 395;
constexpr std::int32_t isSubstituteOf = 318;
}  // namespace

std::string Numbered(const std::string& name, std::int64_t number) {
    constexpr std::size_t digits = 7;
    const std::string text = std::to_string(number);
    return name + " " + std::string(digits - text.size(), '0') + text;
}

Drawing::Drawing()
    : group(repository.Group("Sales")), process(repository.Model(processType, "Orders", group)) {}

Ref<FakeObject> Drawing::Function(std::int64_t number) {
    const Ref<FakeObject> object = repository.Object(ObjectType::function, Numbered("Function", number));
    repository.Draw(process, object);
    return object;
}

Ref<FakeObject> Drawing::RuleObject() {
    const Ref<FakeObject> object = repository.Object(ObjectType::rule, "Rule");
    repository.Draw(process, object);
    return object;
}

Ref<FakeObject> Drawing::EntityType(std::int64_t number) {
    const Ref<FakeObject> object = repository.Object(ObjectType::entityType, Numbered("Record", number));
    repository.Draw(process, object);
    return object;
}

Ends AddDiamonds(Drawing& drawing, std::int64_t pairs) {
    const Ends ends{drawing.Function(1), drawing.Function(2), drawing.RuleObject()};
    Ref<FakeObject> top = ends.top;
    drawing.FunctionToRule(ends.from, top);
    for (std::int64_t pair = 0; pair < pairs; ++pair) {
        const Ref<FakeObject> next = drawing.RuleObject();
        for (int side = 0; side < 2; ++side) {
            const Ref<FakeObject> between = drawing.RuleObject();
            drawing.RuleToRule(top, between);
            drawing.RuleToRule(between, next);
        }
        top = next;
    }
    drawing.RuleToFunction(top, ends.to);
    return ends;
}

void AddRowOfRuleObjects(Drawing& drawing, const Ends& ends, std::int64_t count) {
    Ref<FakeObject> last = drawing.RuleObject();
    drawing.FunctionToRule(ends.from, last);
    for (std::int64_t i = 1; i < count; ++i) {
        const Ref<FakeObject> next = drawing.RuleObject();
        drawing.RuleToRule(last, next);
        last = next;
    }
}

Ends AddGrid(Drawing& drawing, std::int64_t width) {
    constexpr int rows = 10;
    const Ends ends{drawing.Function(1), drawing.Function(2), nullptr};
    std::vector<Ref<FakeObject>> row;
    for (int number = 0; number < rows; ++number) {
        std::vector<Ref<FakeObject>> next;
        for (std::int64_t column = 0; column < width; ++column) {
            next.push_back(drawing.RuleObject());
            if (number == 0) drawing.FunctionToRule(ends.from, next.back());
            for (const Ref<FakeObject> before : row) drawing.RuleToRule(before, next.back());
        }
        row = std::move(next);
    }
    for (const Ref<FakeObject> last : row) drawing.RuleToFunction(last, ends.to);
    return ends;
}

void AddBackwardChain(Drawing& drawing, std::int64_t functions) {
    Ref<FakeObject> before = drawing.Function(0);
    for (std::int64_t number = 1; number < functions; ++number) {
        const Ref<FakeObject> function = drawing.Function(number);
        drawing.FunctionToFunction(function, before);
        before = function;
    }
}

void AddStaffChain(Drawing& drawing, std::int64_t persons) {
    test::FakeRepository& repository = drawing.repository;
    Ref<FakeObject> before = repository.Object(ObjectType::organization, "Organization");
    repository.Draw(drawing.process, before);
    Ref<test::FakeModel> chart;
    for (std::int64_t number = 0; number < persons; ++number) {
        if (number % personsOfModel == 0)
            chart = repository.Model(organizationChartType, Numbered("Staff", number), drawing.group);
        const Ref<FakeObject> person = repository.Object(ObjectType::person, Numbered("Person", number));
        repository.Draw(chart, person);
        repository.Connect(person, number == 0 ? managesOrganization : isSubstituteOf, before);
        before = person;
    }
}

}  // namespace wxbrg::bench
