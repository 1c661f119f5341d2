#include "tools/xttml/document/saved_document.h"

#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/document/xml_text.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xttml/xmltree/tree_operations.h>

using xercesc::DOMNode;

namespace xttml {

namespace {

using Bytes = std::vector<unsigned char>;

bool IsKnown(const std::string& encoding) {
    constexpr XMLSize_t anySize = 1024;
    xercesc::XMLTransService::Codes status{};
    const std::unique_ptr<xercesc::XMLTranscoder> transcoder(
        xercesc::XMLPlatformUtils::fgTransService->makeNewTranscoderFor(
            std::basic_string<XMLCh>(encoding.begin(), encoding.end()).c_str(), status, anySize,
            xercesc::XMLPlatformUtils::fgMemoryManager));
    return transcoder && !encoding.empty(); // which iconv takes for the code page of the process
}

/// Walks a tree in document order, without recursion.
class TreeWalk {
public:
    explicit TreeWalk(const DOMNode* root) : root_(root), node_(root) {}

    const DOMNode* Node() const { return node_; }
    void Next() {
        if (const DOMNode* const child = node_->getFirstChild()) {
            node_ = child;
            return;
        }
        while (node_ != root_ && !node_->getNextSibling())
            node_ = node_->getParentNode();
        node_ = node_ == root_ ? nullptr : node_->getNextSibling();
    }

private:
    const DOMNode* root_;
    const DOMNode* node_;
};

void AppendWords(std::u16string_view text, std::u16string& target) {
    constexpr std::u16string_view whiteSpace = u" \t\n\r";
    for (const char16_t unit : text)
        if (whiteSpace.find(unit) == std::u16string_view::npos)
            target += unit;
}

/// The values of an element's attributes, whatever their order; the declarations of namespaces are not among
/// them.
void AppendAttributes(const DOMNode& element, std::u16string& target) {
    constexpr std::u16string_view declaration = u"xmlns";
    const xercesc::DOMNamedNodeMap& attributes = *element.getAttributes();
    std::vector<std::u16string_view> values;
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        const std::u16string_view name = Units(attributes.item(i)->getNodeName());
        if (name.substr(0, declaration.size()) != declaration)
            values.push_back(Units(attributes.item(i)->getNodeValue()));
    }
    std::sort(values.begin(), values.end());
    for (const auto& value : values)
        AppendWords(value, target);
}

/// All that a document says, without white space, which indenting adds.
std::u16string WordsOf(const DocumentModel& model) {
    std::u16string words;
    for (TreeWalk walk(model.Root().GetNode()); walk.Node(); walk.Next()) {
        const DOMNode& node = *walk.Node();
        if (node.getNodeType() == DOMNode::ELEMENT_NODE)
            AppendAttributes(node, words);
        if (node.getNodeType() == DOMNode::TEXT_NODE || node.getNodeType() == DOMNode::CDATA_SECTION_NODE)
            AppendWords(Units(node.getNodeValue()), words);
    }
    return words;
}

// What a document type declaration names is not there for bytes in memory.
bool CanBeReadBack(const DocumentModel& model) {
    return !static_cast<const xercesc::DOMDocument*>(model.Root().GetNode())->getDoctype();
}

bool HoldsWords(const Bytes& bytes, const std::u16string& words) {
    try {
        const DocumentModel readBack(Source::Of("", std::string(bytes.begin(), bytes.end())));
        return WordsOf(readBack) == words;
    } catch (const UnusableFile&) {
        return false;
    }
}

Bytes Write(const DocumentModel& model, const DocumentForm& form) {
    const std::string name = XercesTreeOperations::Uppercase(form.encoding);
    return model.Root().SaveToBinary(form.pretty, form.encoding, form.bigEndian || name == "UTF-16BE",
                                     form.byteOrderMark || name == "UTF-16");
}

/// Why the library has written nothing: it names the depth, and nothing that it meets in an encoding.
std::string ReasonOf(const tessera::Exception& error, const std::string& encoding) {
    const bool isTooDeep = error.message().find("nested too deep") != std::string::npos;
    return isTooDeep ? "nests elements too deep to be saved"
                     : "cannot be written in the encoding '" + encoding + "'";
}

} // namespace

bool CanBeBigEndian(const std::string& encoding) {
    const std::string name = XercesTreeOperations::Uppercase(encoding);
    const bool isLittleEndian = name.size() > 2 && name.compare(name.size() - 2, 2, "LE") == 0;
    return XercesTreeOperations::GetUnicodeSizeFromEncodingName(name) == 2 && !isLittleEndian;
}

Bytes Serialise(const DocumentModel& model, const DocumentForm& form, const std::string& file) {
    if (!IsKnown(form.encoding))
        throw UnusableFile(file, "the encoding '" + form.encoding + "' is not known");
    const std::u16string words = WordsOf(model);
    Bytes bytes;
    try {
        bytes = Write(model, form);
    } catch (const tessera::DataTargetUnavailableException& error) {
        throw UnusableFile(file, ReasonOf(error, form.encoding));
    }
    if (CanBeReadBack(model) && !HoldsWords(bytes, words))
        throw UnusableFile(file, "loses text in the encoding '" + form.encoding + "'");
    return bytes;
}

} // namespace xttml
