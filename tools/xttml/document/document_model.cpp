#include "tools/xttml/document/document_model.h"

#include "tools/xttml/document/unusable_file.h"

#include <limits>

using ttaf1_dfxp::tt::Cttaf1_dfxp;

namespace xttml {

namespace {

Cttaf1_dfxp Parse(const Source& source, const LoadOptions& options) {
    if (!source.Path().empty())
        return Cttaf1_dfxp::LoadFromFile(source.Path(), options);
    return Cttaf1_dfxp::LoadFromBinary(reinterpret_cast<const unsigned char*>(source.Bytes().data()),
                                       source.Bytes().size(), options);
}

Cttaf1_dfxp Load(const Source& source) {
    LoadFault fault;
    try {
        return Parse(source, {!source.IsTrusted(), &fault});
    } catch (const tessera::DataSourceUnavailableException&) {
        throw UnusableFile(source.Name(), fault.line, fault.column,
                           fault.reason + (fault.kind == LoadFault::REFUSED ? refusalRemedy : ""));
    }
}

} // namespace

DocumentModel::DocumentModel(const Source& source) : root_(Load(source)) {
    if (!root_.tt.exists()) {
        root_.DestroyDocument();
        throw UnusableFile(source.Name(), "no tt root element");
    }
}

std::int32_t FrameRateOf(const Cttaf1_dfxp& document) {
    constexpr std::int32_t usualRate = 30;
    try {
        const std::optional<unsigned long long> rate = document.tt.first().frameRate.value();
        if (!rate)
            return usualRate;
        return *rate <= std::numeric_limits<std::int32_t>::max() ? static_cast<std::int32_t>(*rate) : 0;
    } catch (const tessera::ConversionException&) {
        return 0;
    }
}

} // namespace xttml
