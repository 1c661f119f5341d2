// The life of the XML library in the process. No lock: one thread at a time, and before any other uses it.
#ifndef XTTML_XMLTREE_XML_LIBRARY_H
#define XTTML_XMLTREE_XML_LIBRARY_H

namespace xml_library {

/// Initialises the XML library, which counts. Throws std::bad_alloc when there is no memory for it; half
/// initialised it can be neither used nor terminated, so that every later call throws, too. It may also end
/// the process by itself.
void Initialise();
/// Takes one initialisation back; the last one ends the library.
void Terminate();
/// Whether it can be used.
bool IsInitialised();

} // namespace xml_library

#endif
