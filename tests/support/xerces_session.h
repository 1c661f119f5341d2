// The XML library, initialised for as long as an object of this type lives.
#ifndef XTTML_TESTS_SUPPORT_XERCES_SESSION_H
#define XTTML_TESTS_SUPPORT_XERCES_SESSION_H

#include <xercesc/util/PlatformUtils.hpp>

class XercesSession {
public:
    XercesSession() { xercesc::XMLPlatformUtils::Initialize(); }
    ~XercesSession() { xercesc::XMLPlatformUtils::Terminate(); }
    XercesSession(const XercesSession&) = delete;
    XercesSession& operator=(const XercesSession&) = delete;
};

#endif
