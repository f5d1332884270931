#include <host/Version.h>

const char* host::libraryVersion() { return CHARTXML_VERSION; }
