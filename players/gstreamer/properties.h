// The element's properties.
#ifndef XTTML_PLAYERS_GSTREAMER_PROPERTIES_H
#define XTTML_PLAYERS_GSTREAMER_PROPERTIES_H

#include "players/gstreamer/settings.h"

#include <glib-object.h>

namespace xttml::gstreamer {

/// Gives a class its properties, numbered from 1.
void InstallProperties(GObjectClass* objectClass);

/// Does nothing for a number that is no property's.
void SetProperty(Settings& settings, guint number, const GValue* value);
void GetProperty(const Settings& settings, guint number, GValue* value);

} // namespace xttml::gstreamer

#endif
