#include "binding/formatter_slots.h"

namespace ttaf1_dfxp {

const tessera::XmlFormatter* const formatterSlots[] = {
    &tessera::Exported_TimeFormatter,          &tessera::Exported_DateFormatter,
    &tessera::Exported_DateTimeFormatter,      &tessera::Exported_GYearFormatter,
    &tessera::Exported_GMonthFormatter,        &tessera::Exported_GDayFormatter,
    &tessera::Exported_GYearMonthFormatter,    &tessera::Exported_GMonthDayFormatter,
    &tessera::Exported_IntegerFormatter,       &tessera::Exported_DecimalFormatter,
    &tessera::Exported_AnySimpleTypeFormatter, &tessera::Exported_DurationFormatter,
    &tessera::Exported_DoubleFormatter,        &tessera::Exported_Base64BinaryFormatter,
    &tessera::Exported_HexBinaryFormatter,
};

} // namespace ttaf1_dfxp
