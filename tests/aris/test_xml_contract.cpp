#include "tests/aris/OpenAml.h"
#include "tests/aris/RepositoryContract.h"

namespace wxbrg::test {

namespace {

class XmlRepositoryOfText final : public ProvidedRepository {
  public:
    explicit XmlRepositoryOfText(const RepositoryText& content) : export_(content) {}
    ARISApplication Application() override { return export_.Catalogue().Application(); }

  private:
    OpenAml export_;
};

RepositoryProvider XmlProvider() {
    return {"Xml", [](const RepositoryText& content) {
                return std::make_unique<XmlRepositoryOfText>(content);
            }};
}

INSTANTIATE_TEST_SUITE_P(Xml, RepositoryContract, testing::Values(XmlProvider()), [](const auto& test) {
    return test.param.name;
});

}  // namespace

}  // namespace wxbrg::test
