#include "repository/XMLParser2.h"

#include "repository/NetXMLParser2.h"

namespace ZORVEL {

bool XMLParser2::ParseXML(const wchar_t* path) { return NetXMLParser2::ParseRepositoryXML(path); }

}  // namespace ZORVEL
