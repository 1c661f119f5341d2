"""The TTML 1.0 document model (DFXP) with the SMPTE-TT and CFF-TT additions, in table order.

This is the one place where a namespace, type, member or facet is named; generate.py makes the tables and
the wrapper classes from it. Sources: TTML 1.0 and its schema, SMPTE ST 2052-1:2010, XML Schema Part 2.
"""

from schema_model import (
    Namespace, Schema, anonymous_complex_type, anonymous_type, attribute, attributes, complex_type, element,
    element_type, enumeration, fraction_digits, max_inclusive, min_inclusive, min_length, mixed,
    optional_element, optional_elements, pattern, required, simple_content, simple_type, whitespace,
)

# Repeated groups of members.

XML_ID = attribute("xml:id", "xs:ID")
XML_LANG = attribute("xml:lang", "tt:ClangType")
XML_SPACE = attribute("xml:space", "tt:CspaceType")
CORE = [XML_ID, XML_LANG, XML_SPACE]

TIMING = [
    attribute("begin", "ttd:timeCoordinate"),
    attribute("dur", "ttd:timeDuration"),
    attribute("end", "ttd:timeCoordinate"),
]
TIMED_CONTAINER = [*TIMING, attribute("timeContainer", "ttd:timeContainer")]

REGION = attribute("region", "xs:IDREF")
STYLE = attribute("style", "xs:IDREFS")
FORCED_DISPLAY = attribute("cff:forcedDisplayMode", "tt:CforcedDisplayModeType")
METADATA_ATTRIBUTES = attributes("ttm", "agent", "role")

STYLING = [
    attribute("tts:backgroundColor", "ttd:color"),
    *attributes(
        "tts", "color", "direction", "display", "displayAlign", "dynamicFlow", "extent", "fontFamily",
        "fontSize", "fontStyle", "fontWeight", "lineHeight", "opacity", "origin", "overflow", "padding",
        "showBackground", "textAlign", "textDecoration", "textOutline", "unicodeBidi", "visibility",
        "wrapOption", "writingMode", "zIndex"),
]

METADATA_ELEMENTS = [
    element("ttm:agent"),
    element("ttm:copyright"),
    element("ttm:desc"),
    element("ttm:title"),
    element("tt:metadata"),
    element("smpte:information", "tt:CinformationType"),
]

# What body, div, p and span have in common, and what p and span do.

CONTENT_ATTRIBUTES = [
    *CORE, *TIMED_CONTAINER, REGION, STYLE, *STYLING, *METADATA_ATTRIBUTES, FORCED_DISPLAY,
]
INLINE_CONTENT = [
    mixed(), *CONTENT_ATTRIBUTES, *METADATA_ELEMENTS, element("tt:set"), element("tt:br"), element("tt:span"),
]

# Facets that several types share.

COLLAPSE = whitespace("collapse")
NON_EMPTY_LIST = [COLLAPSE, min_length("1")]
NAME_TOKEN = pattern(r"\c+")
LANGUAGE = pattern("[a-zA-Z]{1,8}(-[a-zA-Z0-9]{1,8})*")
BASE64 = enumeration("Base64")
NUMBER_PAIR = pattern(r"\p{Nd}+\s+\p{Nd}+")
DESIGNATED_SUPPORT = enumeration("optional", "required", "use")

# The types of each namespace.

SMPTE_TYPES = [
    # ST 2052-1 places a background image by these words; both axes share the one type.
    simple_type("backgoundImageAlign", "xs:token",
                enumeration("left", "center", "right", "top", "center", "bottom")),
    simple_type("backgoundImageType", "xs:anyURI", pattern(r"urn:dece:container:imageindex:\d+:.png")),
]

XS_TYPES = [
    simple_type("ENTITIES", "xs:anySimpleType", NON_EMPTY_LIST),
    simple_type("ENTITY", "xs:NCName"),
    simple_type("ID", "xs:NCName"),
    simple_type("IDREF", "xs:NCName"),
    simple_type("IDREFS", "xs:anySimpleType", NON_EMPTY_LIST),
    simple_type("NCName", "xs:Name", pattern(r"[\i-[:]][\c-[:]]*")),
    simple_type("NMTOKEN", "xs:token", NAME_TOKEN),
    simple_type("NMTOKENS", "xs:anySimpleType", NON_EMPTY_LIST, NAME_TOKEN, NAME_TOKEN),
    simple_type("NOTATION", "xs:anySimpleType", COLLAPSE),
    simple_type("Name", "xs:token", pattern(r"\i\c*")),
    simple_type("QName", "xs:anySimpleType", COLLAPSE),
    simple_type("anySimpleType", None),
    complex_type("anyType", None, mixed()),
    simple_type("anyURI", "xs:anySimpleType", COLLAPSE),
    simple_type("base64Binary", "xs:anySimpleType", COLLAPSE),
    simple_type("boolean", "xs:anySimpleType", COLLAPSE, value="bool"),
    simple_type("byte", "xs:short", min_inclusive("-128"), max_inclusive("127")),
    simple_type("date", "xs:anySimpleType", COLLAPSE, slot="DATE"),
    simple_type("dateTime", "xs:anySimpleType", COLLAPSE, slot="DATE_TIME"),
    simple_type("decimal", "xs:anySimpleType", COLLAPSE, slot="DECIMAL"),
    simple_type("double", "xs:anySimpleType", COLLAPSE, slot="DOUBLE", value="double"),
    simple_type("duration", "xs:anySimpleType", COLLAPSE),
    simple_type("float", "xs:anySimpleType", COLLAPSE, slot="DOUBLE", value="double"),
    simple_type("gDay", "xs:anySimpleType", COLLAPSE, slot="G_DAY"),
    simple_type("gMonth", "xs:anySimpleType", COLLAPSE, slot="G_MONTH"),
    simple_type("gMonthDay", "xs:anySimpleType", COLLAPSE, slot="G_MONTH_DAY"),
    simple_type("gYear", "xs:anySimpleType", COLLAPSE, slot="G_YEAR"),
    simple_type("gYearMonth", "xs:anySimpleType", COLLAPSE, slot="G_YEAR_MONTH"),
    simple_type("hexBinary", "xs:anySimpleType", COLLAPSE, slot="HEX_BINARY"),
    simple_type("int", "xs:long", min_inclusive("-2147483648"), max_inclusive("2147483647")),
    simple_type("integer", "xs:decimal", fraction_digits("0"), pattern(r"[\-+]?[0-9]+"), slot="INTEGER"),
    simple_type("language", "xs:token", LANGUAGE),
    simple_type("long", "xs:integer",
                min_inclusive("-9223372036854775808"), max_inclusive("9223372036854775807")),
    simple_type("negativeInteger", "xs:nonPositiveInteger", max_inclusive("-1")),
    simple_type("nonNegativeInteger", "xs:integer", min_inclusive("0"), value="unsigned long long"),
    simple_type("nonPositiveInteger", "xs:integer", max_inclusive("0")),
    simple_type("normalizedString", "xs:string", whitespace("replace")),
    simple_type("positiveInteger", "xs:nonNegativeInteger", min_inclusive("1")),
    simple_type("short", "xs:int", min_inclusive("-32768"), max_inclusive("32767")),
    simple_type("string", "xs:anySimpleType", whitespace("preserve")),
    simple_type("time", "xs:anySimpleType", COLLAPSE, slot="TIME"),
    simple_type("token", "xs:normalizedString", COLLAPSE),
    simple_type("unsignedByte", "xs:unsignedShort", max_inclusive("255")),
    simple_type("unsignedInt", "xs:unsignedLong", max_inclusive("4294967295")),
    simple_type("unsignedLong", "xs:nonNegativeInteger", max_inclusive("18446744073709551615")),
    simple_type("unsignedShort", "xs:unsignedInt", max_inclusive("65535")),
    anonymous_complex_type("CstringType", None, simple_content("xs:string")),
]

TT_ELEMENT_TYPES = [
    element_type("body", CONTENT_ATTRIBUTES,
                 METADATA_ELEMENTS, element("tt:set"), element("tt:div"), module="content"),
    element_type("br", CORE, STYLE, STYLING, METADATA_ATTRIBUTES,
                 METADATA_ELEMENTS, element("tt:set"), module="content"),
    element_type("div", CONTENT_ATTRIBUTES,
                 attribute("smpte:backgroundImage", "smpte:backgoundImageType"),
                 attribute("smpte:backgroundImageHorizontal", "smpte:backgoundImageAlign"),
                 attribute("smpte:backgroundImageVertical", "smpte:backgoundImageAlign"),
                 METADATA_ELEMENTS, element("tt:set"), element("tt:p"), element("tt:div"), module="content"),
    element_type("head", CORE, METADATA_ELEMENTS, element("ttp:profile"),
                 optional_elements("tt", "styling", "layout"), module="document"),
    element_type("layout", CORE, METADATA_ELEMENTS, element("tt:region"), module="layout"),
    element_type("metadata", mixed(), CORE, module="metadata"),
    element_type("p", INLINE_CONTENT, module="content"),
    element_type("region", CORE, STYLE, STYLING, TIMED_CONTAINER, FORCED_DISPLAY,
                 METADATA_ELEMENTS, element("tt:set"), element("tt:style"), module="layout"),
    element_type("set", CORE, TIMING, STYLING, FORCED_DISPLAY, METADATA_ELEMENTS, module="animation"),
    element_type("span", INLINE_CONTENT, module="content"),
    element_type("style", CORE, STYLE, STYLING, METADATA_ELEMENTS, module="styling"),
    element_type("styling", CORE, METADATA_ELEMENTS, element("tt:style"), module="styling"),
    element_type("tt", XML_ID, required(XML_LANG), XML_SPACE,
                 attributes("ttp", "cellResolution", "clockMode", "dropMode", "frameRate",
                            "frameRateMultiplier", "markerMode", "profile", "pixelAspectRatio",
                            "subFrameRate", "tickRate", "timeBase"),
                 attributes("tts", "extent"),
                 optional_elements("tt", "head", "body"), module="document"),
]

# The document: every element that may be its root.
DOCUMENT_TYPE = complex_type(
    "ttaf1_dfxp", None,
    optional_element("smpte:data", "tt:CdataType"),
    optional_element("smpte:image", "tt:CimageType"),
    optional_element("smpte:information", "tt:CinformationType"),
    optional_elements("tt", "body", "br", "div", "head", "layout", "metadata", "p", "region", "set", "span",
                      "style", "styling", "tt"),
    optional_elements("ttm", "actor", "agent", "copyright", "desc", "name", "title"),
    optional_elements("ttp", "extension", "extensions", "feature", "features", "profile"),
    module="document")

SMPTE_ID = attribute("id", "xs:ID")

# The anonymous types of the SMPTE-TT elements and their attributes, and of xml:lang, xml:space and
# cff:forcedDisplayMode.
TT_ANONYMOUS_TYPES = [
    anonymous_complex_type("CdataType", "xs:CstringType", simple_content("xs:string"), SMPTE_ID,
                           required(attribute("encoding", "tt:CencodingType")),
                           required(attribute("datatype", "xs:string")), module="smpte"),
    anonymous_type("CencodingType", "xs:token", BASE64, module="smpte"),
    anonymous_complex_type("CimageType", "xs:CstringType", simple_content("xs:string"), SMPTE_ID,
                           required(attribute("imagetype", "tt:CimagetypeType")),
                           required(attribute("encoding", "tt:CencodingType2")), module="smpte"),
    anonymous_type("CimagetypeType", "xs:token", enumeration("PNG"), module="smpte"),
    anonymous_type("CencodingType2", "xs:token", BASE64, module="smpte"),
    anonymous_complex_type("CinformationType", "xs:CstringType", simple_content("xs:string"), SMPTE_ID,
                           attribute("origin", "xs:anyURI"),
                           attribute("threshold", "xs:float"),
                           attribute("mode", "tt:CmodeType"),
                           attribute("encoding", "tt:CencodingType3"),
                           attribute("m608:channel", "tt:CchannelType"),
                           attribute("m608:fieldStart", "tt:CfieldStartType"),
                           attribute("m608:programName", "tt:CprogramNameType"),
                           attribute("m608:programType", "tt:CprogramTypeType"),
                           attribute("m608:contentAdvisory", "tt:CcontentAdvisoryType"),
                           attribute("m608:captionService", "tt:CcaptionServiceType"),
                           attribute("m608:copyAndRedistributionControl",
                                     "tt:CcopyAndRedistributionControlType"),
                           attribute("m608:captionLanguage", "tt:CcaptionLanguageType"), module="smpte"),
    anonymous_type("CmodeType", "xs:token", enumeration("Enhanced", "Preserved"), module="smpte"),
    anonymous_type("CencodingType3", "xs:token", BASE64, module="smpte"),
    # CEA-608: four caption channels and four text channels, two fields.
    anonymous_type("CchannelType", "xs:token",
                   enumeration("CC1", "CC2", "CC3", "CC4", "T1", "T2", "T3", "T4"), module="smpte"),
    anonymous_type("CfieldStartType", "xs:token", enumeration("1", "2"), module="smpte"),
    anonymous_type("CprogramNameType", "xs:string", module="smpte"),
    anonymous_type("CprogramTypeType", "xs:string", module="smpte"),
    anonymous_type("CcontentAdvisoryType", "xs:string", module="smpte"),
    anonymous_type("CcaptionServiceType", "xs:token",
                   enumeration("F1C1CC", "F1C1TX", "F1C2CC", "F1C2TX",
                               "F2C1CC", "F2C1TX", "F2C2CC", "F2C2TX"), module="smpte"),
    anonymous_type("CcopyAndRedistributionControlType", "xs:string", module="smpte"),
    anonymous_type("CcaptionLanguageType", "xs:string", module="smpte"),
    # XML 1.0, 2.12: a language tag, or the empty string to undo one.
    anonymous_type("ClangType", "xs:anySimpleType", enumeration(""), LANGUAGE, module="core"),
    anonymous_type("ClangType2", "xs:string", module="core"),
    anonymous_type("CspaceType", "xs:NCName", enumeration("default", "preserve"), module="core"),
    anonymous_type("CforcedDisplayModeType", "xs:boolean", module="core"),
]

TTD_TYPES = [
    simple_type("agent", "xs:IDREFS"),
    simple_type("alpha", "xs:float", min_inclusive("0"), max_inclusive("1")),
    simple_type("cellResolution", "xs:string"),
    simple_type("clockMode", "xs:token", enumeration("local", "gps", "utc")),
    simple_type("color", "xs:string"),
    simple_type("direction", "xs:token", enumeration("ltr", "rtl")),
    simple_type("display", "xs:token", enumeration("auto", "none")),
    simple_type("displayAlign", "xs:token", enumeration("before", "center", "after")),
    simple_type("dropMode", "xs:token", enumeration("dropNTSC", "dropPAL", "nonDrop")),
    simple_type("dynamicFlow", "xs:string"),
    simple_type("extensionDesignator", "xs:anyURI"),
    simple_type("extensionValue", "xs:token", DESIGNATED_SUPPORT),
    simple_type("extent", "xs:string"),
    simple_type("featureDesignator", "xs:anyURI"),
    simple_type("featureValue", "xs:token", DESIGNATED_SUPPORT),
    simple_type("fontFamily", "xs:string"),
    simple_type("fontSize", "xs:string"),
    simple_type("fontStyle", "xs:token", enumeration("normal", "italic", "oblique", "reverseOblique")),
    simple_type("fontWeight", "xs:token", enumeration("normal", "bold")),
    simple_type("frameRate", "xs:nonNegativeInteger"),
    simple_type("frameRateMultiplier", "xs:string", NUMBER_PAIR),
    simple_type("lineHeight", "xs:string"),
    simple_type("markerMode", "xs:token", enumeration("continuous", "discontinuous")),
    simple_type("metadataAgentType", "xs:token",
                enumeration("person", "character", "group", "organization", "other")),
    simple_type("metadataNameType", "xs:token", enumeration("full", "family", "given", "alias", "other")),
    simple_type("metadataRoleBaseType", "xs:token",
                enumeration("action", "caption", "description", "dialog", "expletive", "kinesic", "lyrics",
                            "music", "narration", "quality", "sound", "source", "suppressed", "reproduction",
                            "thought", "title", "transcription")),
    simple_type("opacity", "xs:string"),
    simple_type("origin", "xs:string"),
    simple_type("overflow", "xs:token", enumeration("visible", "hidden", "dynamic")),
    simple_type("padding", "xs:string"),
    simple_type("pixelAspectRatio", "xs:string", NUMBER_PAIR),
    simple_type("profile", "xs:anyURI"),
    simple_type("role", "xs:NMTOKEN"),
    simple_type("showBackground", "xs:token", enumeration("always", "whenActive")),
    simple_type("subFrameRate", "xs:positiveInteger"),
    simple_type("textAlign", "xs:token", enumeration("left", "center", "right", "start", "end")),
    simple_type("textDecoration", "xs:token",
                enumeration("none", "underline", "noUnderline", "overline", "noOverline", "lineThrough",
                            "noLineThrough")),
    simple_type("textOutline", "xs:string"),
    simple_type("tickRate", "xs:positiveInteger"),
    simple_type("timeBase", "xs:token", enumeration("media", "smpte", "clock")),
    simple_type("timeContainer", "xs:token", enumeration("par", "seq")),
    simple_type("timeCoordinate", "xs:string"),
    simple_type("timeDuration", "xs:string"),
    simple_type("unicodeBidi", "xs:token", enumeration("normal", "embed", "bidiOverride")),
    simple_type("visibility", "xs:token", enumeration("hidden", "visible")),
    simple_type("wrapOption", "xs:token", enumeration("wrap", "noWrap")),
    simple_type("writingMode", "xs:token", enumeration("lrtb", "rltb", "tbrl", "tblr", "lr", "rl", "tb")),
    simple_type("zIndex", "xs:string"),
    anonymous_complex_type("CextensionDesignatorType", None, simple_content("ttd:extensionDesignator")),
    anonymous_complex_type("CfeatureDesignatorType", None, simple_content("ttd:featureDesignator")),
]

TTM_TYPES = [
    element_type("actor", CORE, attribute("agent", "xs:IDREF")),
    element_type("agent", CORE, required(attribute("type", "ttd:metadataAgentType")),
                 element("ttm:name"), optional_element("ttm:actor")),
    element_type("copyright", mixed(), CORE),
    element_type("desc", mixed(), CORE),
    element_type("name", mixed(), CORE, attribute("type", "ttd:metadataNameType")),
    element_type("title", mixed(), CORE),
]

XML_BASE = attribute("xml:base", "xs:anyURI")

TTP_TYPES = [
    complex_type("extension.eltype", "ttd:CextensionDesignatorType",
                 simple_content("ttd:extensionDesignator"), XML_ID, attribute("value", "ttd:extensionValue")),
    element_type("extensions", XML_ID, XML_BASE, element("ttp:extension")),
    complex_type("feature.eltype", "ttd:CfeatureDesignatorType",
                 simple_content("ttd:featureDesignator"), XML_ID, attribute("value", "ttd:featureValue")),
    element_type("features", XML_ID, XML_BASE, element("ttp:feature")),
    element_type("profile", XML_ID, attribute("use", "ttd:profile"),
                 element("ttp:features"), element("ttp:extensions")),
]

SMPTE_TT = "http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt"
TTML = "http://www.w3.org/ns/ttml"

SCHEMA = Schema([
    Namespace("cff", "http://www.decellc.org/schema/2012/01/cff-tt-meta"),
    Namespace("smpte", SMPTE_TT, "smpte", SMPTE_TYPES),
    Namespace("m608", SMPTE_TT + "#ce608"),
    Namespace("xs", "http://www.w3.org/2001/XMLSchema", "xml_schema", XS_TYPES),
    Namespace("xml", "http://www.w3.org/XML/1998/namespace"),
    Namespace("tt", TTML, None, [*TT_ELEMENT_TYPES, DOCUMENT_TYPE, *TT_ANONYMOUS_TYPES]),
    Namespace("ttd", TTML + "#datatype", "datatype", TTD_TYPES),
    Namespace("ttm", TTML + "#metadata", "metadata", TTM_TYPES),
    Namespace("ttp", TTML + "#parameter", "parameter", TTP_TYPES),
    Namespace("tts", TTML + "#styling"),
])
