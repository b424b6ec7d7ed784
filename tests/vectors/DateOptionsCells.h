// Date options as the tables write them: `I`, or `G/start of week/fiscal year start`.
#pragma once

#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

#include "velcoredata/data/GregorianDateOptions.h"
#include "velcoredata/data/ISO8601DateOptions.h"

namespace velcoredata::vectors {

inline std::unique_ptr<IDateOptions> DecodeDateOptions(std::string const & cell)
{
    if (cell == "I")
        return std::make_unique<ISO8601DateOptions>();
    std::istringstream in(cell);
    char g = 0, slash1 = 0, slash2 = 0;
    int startOfWeek = 0, fiscalYearStart = 0;
    if (!(in >> g >> slash1 >> startOfWeek >> slash2 >> fiscalYearStart) || g != 'G' || slash1 != '/' || slash2 != '/')
        throw std::runtime_error("date options expected: " + cell);
    return std::make_unique<GregorianDateOptions>(static_cast<SOWValue>(startOfWeek),
                                                  static_cast<FYSValues>(fiscalYearStart));
}

}  // namespace velcoredata::vectors
