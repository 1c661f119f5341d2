// The commands that draw, in a tool that was built without what draws.
#include "tools/xttml/commands/commands.h"

#include "tools/xttml/timeline/chart_picture.h"

#include <stdexcept>

namespace xttml {

namespace {

[[noreturn]] void Refuse() {
    throw std::runtime_error("cannot draw: built without Pango and Cairo");
}

} // namespace

void RunCommand(const RenderOptions&, const Input&, StandardOutput&) {
    Refuse();
}

void RunCommand(const SheetOptions&, const Input&, StandardOutput&) {
    Refuse();
}

std::string PngOf(const Chart&) {
    Refuse();
}

} // namespace xttml
