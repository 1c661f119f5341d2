// Pictures that are not shown.
#include "tools/xttml/document/image_block.h"
#include "tools/xttml/document/item_elements.h"
#include "tools/xttml/findings/attribute.h"
#include "tools/xttml/findings/finding_kinds.h"

#include <algorithm>
#include <fmt/format.h>

namespace xttml {

namespace {

/// Reports the elements with a role once, where the first of them stands.
template <class LossOf>
void ReportOnce(const CheckedDocument& document, Role role, const Report& report, LossOf&& lossOf) {
    const auto isOne = [role](const Element& element) { return element.role == role; };
    const ElementList& all = document.Elements();
    const auto first = std::find_if(all.begin(), all.end(), isOne);
    if (first != all.end())
        report(*first, "", lossOf(std::count_if(first, all.end(), isOne)));
}

const char* Plural(std::ptrdiff_t count) {
    return count == 1 ? "" : "s";
}

void FindPicturesWithoutBlock(const CheckedDocument& document, const Report& report) {
    if (!document.ShowsImages())
        ReportOnce(document, Role::PICTURE, report, [](std::ptrdiff_t count) {
            return fmt::format("{} picture{} not shown without --images", count, Plural(count));
        });
}

void FindTextBesidePictures(const CheckedDocument& document, const Report& report) {
    if (document.ShowsImages())
        ReportOnce(document, Role::PARAGRAPH, report, [](std::ptrdiff_t count) {
            return fmt::format("{} paragraph{} not shown with --images", count, Plural(count));
        });
}

/// Looks at every picture, also where none is read.
template <void (*find)(const CheckedDocument&, const Element&, const Report&)>
void OnEachPicture(const CheckedDocument& document, const Report& report) {
    for (const Element& element : document.Elements()) {
        if (element.role == Role::PICTURE)
            find(document, element, report);
    }
}

/// The picture's number when it is one that a block has, else 0.
std::uint32_t NumberInBlock(const Element& element) {
    const std::uint32_t number = PictureNumber(AttributeOf(*element.node, pictureName).Value()).value_or(0);
    return number <= mostPictures ? number : 0;
}

void FindNumberTooLarge(const CheckedDocument&, const Element& element, const Report& report) {
    const Attribute picture = AttributeOf(*element.node, pictureName);
    if (PictureNumber(picture.Value()).value_or(0) > mostPictures)
        report(element, picture.Written(),
               fmt::format("not shown: the pictures of a block are numbered 1 to {}", mostPictures));
}

void FindNoNumber(const CheckedDocument&, const Element& element, const Report& report) {
    const Attribute picture = AttributeOf(*element.node, pictureName);
    if (PictureNumber(picture.Value()).value_or(0) == 0)
        report(element, picture.Written(),
               "not shown: no number of a picture as in urn:dece:container:subtitleimageindex:1.png");
}

void FindMissingPicture(const CheckedDocument&, const Element& element, const Report& report) {
    if (element.item && DataOf(*element.item).empty())
        report(element, AttributeOf(*element.node, pictureName).Written(),
               "not shown: the block has no such picture");
}

void FindPictureElsewhere(const CheckedDocument&, const Element& element, const Report& report) {
    if (!IsPlaceOfPicture(element))
        report(element, AttributeOf(*element.node, pictureName).Written(),
               "not shown: only divisions of the body and those directly in them show pictures");
}

void FindPictureWithoutTime(const CheckedDocument&, const Element& element, const Report& report) {
    if (NumberInBlock(element) == 0 || !IsPlaceOfPicture(element))
        return;
    for (const AttributeName& name : {beginName, endName}) {
        if (!AttributeOf(*element.node, name)) {
            report(
                element, "",
                fmt::format("no {}: for want of it the document's pictures cannot be shown", name.localName));
            return;
        }
    }
}

} // namespace

const FindingKinds& ImageFindings() {
    static const FindingKinds kinds = {
        {"no-images", "Pictures in a document that is checked without --images", FindPicturesWithoutBlock},
        {"text-beside-images", "Paragraphs in a document that is checked with --images",
         FindTextBesidePictures},
        {"picture-too-many", "A picture beyond the thirtieth", OnEachPicture<FindNumberTooLarge>},
        {"picture-number", "A picture that is not named by its number", OnEachPicture<FindNoNumber>},
        {"picture-missing", "A picture that the block does not have", OnEachPicture<FindMissingPicture>},
        {"picture-elsewhere", "A picture where none is looked for", OnEachPicture<FindPictureElsewhere>},
        {"picture-time", "A picture without begin or end", OnEachPicture<FindPictureWithoutTime>},
    };
    return kinds;
}

} // namespace xttml
