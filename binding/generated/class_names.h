// Made from binding/schema.py by `python3 binding/generate.py`; do not edit.
//
// The names of all wrapper classes.
// clang-format off
#ifndef XTTML_BINDING_GENERATED_CLASS_NAMES_H
#define XTTML_BINDING_GENERATED_CLASS_NAMES_H

namespace ttaf1_dfxp::smpte {

struct CbackgoundImageAlign;
struct CbackgoundImageType;

} // namespace ttaf1_dfxp::smpte

namespace ttaf1_dfxp::xs {

struct CENTITIES;
struct CENTITY;
struct CID;
struct CIDREF;
struct CIDREFS;
struct CNCName;
struct CNMTOKEN;
struct CNMTOKENS;
struct CNOTATION;
struct CName;
struct CQName;
struct CanySimpleType;
class CanyType;
struct CanyURI;
struct Cbase64Binary;
struct Cboolean;
struct Cbyte;
struct Cdate;
struct CdateTime;
struct Cdecimal;
struct Cdouble;
struct Cduration;
struct Cfloat;
struct CgDay;
struct CgMonth;
struct CgMonthDay;
struct CgYear;
struct CgYearMonth;
struct ChexBinary;
struct Cint;
struct Cinteger;
struct Clanguage;
struct Clong;
struct CnegativeInteger;
struct CnonNegativeInteger;
struct CnonPositiveInteger;
struct CnormalizedString;
struct CpositiveInteger;
struct Cshort;
struct Cstring;
struct Ctime;
struct Ctoken;
struct CunsignedByte;
struct CunsignedInt;
struct CunsignedLong;
struct CunsignedShort;
class CstringType;

} // namespace ttaf1_dfxp::xs

namespace ttaf1_dfxp::tt {

class Cbody_eltype;
class Cbr_eltype;
class Cdiv_eltype;
class Chead_eltype;
class Clayout_eltype;
class Cmetadata_eltype;
class Cp_eltype;
class Cregion_eltype;
class Cset_eltype;
class Cspan_eltype;
class Cstyle_eltype;
class Cstyling_eltype;
class Ctt_eltype;
class Cttaf1_dfxp;
class CdataType;
struct CencodingType;
class CimageType;
struct CimagetypeType;
struct CencodingType2;
class CinformationType;
struct CmodeType;
struct CencodingType3;
struct CchannelType;
struct CfieldStartType;
struct CprogramNameType;
struct CprogramTypeType;
struct CcontentAdvisoryType;
struct CcaptionServiceType;
struct CcopyAndRedistributionControlType;
struct CcaptionLanguageType;
struct ClangType;
struct ClangType2;
struct CspaceType;
struct CforcedDisplayModeType;

} // namespace ttaf1_dfxp::tt

namespace ttaf1_dfxp::ttd {

struct Cagent;
struct Calpha;
struct CcellResolution;
struct CclockMode;
struct Ccolor;
struct Cdirection;
struct Cdisplay;
struct CdisplayAlign;
struct CdropMode;
struct CdynamicFlow;
struct CextensionDesignator;
struct CextensionValue;
struct Cextent;
struct CfeatureDesignator;
struct CfeatureValue;
struct CfontFamily;
struct CfontSize;
struct CfontStyle;
struct CfontWeight;
struct CframeRate;
struct CframeRateMultiplier;
struct ClineHeight;
struct CmarkerMode;
struct CmetadataAgentType;
struct CmetadataNameType;
struct CmetadataRoleBaseType;
struct Copacity;
struct Corigin;
struct Coverflow;
struct Cpadding;
struct CpixelAspectRatio;
struct Cprofile;
struct Crole;
struct CshowBackground;
struct CsubFrameRate;
struct CtextAlign;
struct CtextDecoration;
struct CtextOutline;
struct CtickRate;
struct CtimeBase;
struct CtimeContainer;
struct CtimeCoordinate;
struct CtimeDuration;
struct CunicodeBidi;
struct Cvisibility;
struct CwrapOption;
struct CwritingMode;
struct CzIndex;
class CextensionDesignatorType;
class CfeatureDesignatorType;

} // namespace ttaf1_dfxp::ttd

namespace ttaf1_dfxp::ttm {

class Cactor_eltype;
class Cagent_eltype;
class Ccopyright_eltype;
class Cdesc_eltype;
class Cname_eltype;
class Ctitle_eltype;

} // namespace ttaf1_dfxp::ttm

namespace ttaf1_dfxp::ttp {

class Cextension_eltype;
class Cextensions_eltype;
class Cfeature_eltype;
class Cfeatures_eltype;
class Cprofile_eltype;

} // namespace ttaf1_dfxp::ttp

#endif
