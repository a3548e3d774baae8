#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

// Texts of STEP files that no program writes.

namespace cadtests {

/// The text with the first `what` replaced; a failure of the test when it is not there.
inline std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return at == std::string::npos ? text : text.replace(at, what.size(), with);
}

/// The shortest STEP file around lines of data.
inline std::string stepWithData(const std::string& data)
{
    return "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
           "FILE_SCHEMA(('AUTOMOTIVE_DESIGN'));\nENDSEC;\nDATA;\n" +
           data + "ENDSEC;\nEND-ISO-10303-21;\n";
}

} // namespace cadtests
