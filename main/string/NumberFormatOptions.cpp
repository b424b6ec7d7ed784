#include "velcoredata/string/NumberFormatOptions.h"

#include <utility>

NumberFormatOptions::NumberFormatOptions() = default;

NumberFormatOptions::NumberFormatOptions(int decimals_, TString decimalSeparator_, bool useGrouping_, TString grouping_,
                                         TString thousandSeparator_, TString prefix_, TString suffix_,
                                         UnitsFormatEnum units_, NegativeFormatEnum negative_)
    : decimals(decimals_),
      decimalSeparator(std::move(decimalSeparator_)),
      useGrouping(useGrouping_),
      grouping(std::move(grouping_)),
      thousandSeparator(std::move(thousandSeparator_)),
      prefix(std::move(prefix_)),
      suffix(std::move(suffix_)),
      units(units_),
      negative(negative_)
{}

NumberFormatOptions::NumberFormatOptions(NumberFormatOptions const & other) = default;
NumberFormatOptions::NumberFormatOptions(NumberFormatOptions && other) noexcept = default;
NumberFormatOptions & NumberFormatOptions::operator=(NumberFormatOptions const & other) = default;
NumberFormatOptions & NumberFormatOptions::operator=(NumberFormatOptions && other) noexcept = default;
NumberFormatOptions::~NumberFormatOptions() = default;
