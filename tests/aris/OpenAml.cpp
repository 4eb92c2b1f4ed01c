#include "tests/aris/OpenAml.h"

#include "aris/xml/XmlRepository.h"

namespace wxbrg::test {

OpenAml::OpenAml(std::string_view aml, const std::string& file, std::string_view types) {
    const std::string typesFile = types.empty() ? std::string() : folder_.Write("types.tsv", types);
    catalogue_ = OpenXmlRepository({folder_.Write(file, aml), typesFile, {}});
}

ARISDatabase OpenAml::Database(std::string_view user) {
    return catalogue_->Application()
        ->GetComponent(arisReportComponent)
        ->OpenDatabase("", "any", "", user, "");
}

Failure FailureOfOpening(std::string_view aml) {
    const TemporaryFolder folder;
    return FailureOfOpeningFile(folder.Write("demo.aml", aml));
}

Failure FailureOfOpeningFile(const std::string& file, const std::string& typesFile) {
    try {
        OpenXmlRepository({file, typesFile, {}});
    } catch (const Failure& failure) {
        return failure;
    }
    return Failure(0);
}

}  // namespace wxbrg::test
