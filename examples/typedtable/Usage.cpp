#include "typedtable/Options.h"

namespace typedtable {

char const * const kUsage =
    R"(usage: typedtable FILE [--rows N]
       typedtable FILE [--where CONDITION] [--find TEXT] [--sort COLUMN] [--rows N] [--as FORM]
       typedtable FILE --sum|--mean|--min|--max COLUMN... [--count]
       typedtable FILE --distinct COLUMN [--sum|--mean|--min|--max COLUMN]... [--count]
       typedtable FILE --group-by COLUMN:PERIOD [--sum|--mean|--min|--max COLUMN]... [--count]
       typedtable --explain-collation NAME
       typedtable --list-locales [PATTERN]
       typedtable --date-order LOCALE

Reads a CSV file (UTF-8, with a header), types its columns, and prints the columns with their types and counts of nulls,
and the first rows. With more options it prints rows, sums, or groups instead. FILE may be - for standard input.

COLUMN is a name as the header has it, or a qualified name: [temp max], or [weather].[temp max] with the name of the
file without its ending in front. In brackets a ] is written twice; a column whose own name is [a] is [[a]]].

Rows
  --rows N             how many rows to print, 0 to 1000000 (5 below the columns, else all)
  --sort COLUMN        the rows by rising value, nulls first. Rows that are sorted are held in memory
  --where CONDITION    only rows that fulfil it: "temp_max > 20". One of = != < <= > >= between a column and a number, a
                       text in quotes, true, false, null or a date, which may stand between # and #. A column whose name
                       holds one of these signs stands in double quotes or in brackets
  --find TEXT          only rows with the text somewhere in a text column

Sums and groups, also of the rows that --where and --find leave
  --sum COLUMN         the sum of a column, in each group if there are groups; likewise --mean, --min and --max. May be
                       given again
  --count              the rows of each group; the default if nothing else is asked for
  --distinct COLUMN    gather the rows by equal values of a column
  --group-by COL:PER   gather the rows by a period of a date column. Periods:
                         year, quarter, month, week, day, iso-year, iso-quarter, iso-week
  --fiscal-start N     the month, 1 to 12, with which years and quarters begin (1)
  --week-start N       the day, 1 = Sunday to 7 = Saturday, with which a week begins (1), or an iso-week (2)
  --sql-nulls          a null makes a sum, mean, minimum or maximum null, and no condition holds for it. Otherwise it
                       takes no part in them, and is less than everything else in a condition

How texts are compared and searched
  --collation NAME     by a collator name: LEN_RUS_S2 is English (en_US) without case, binary the order of code units
  --locale LOCALE      or by a locale: sv_SE. Without either, by the root order of all languages
  --ignore-case, --ignore-accents
                       with --locale: A equals a, e equals é
  --word-sort          with --locale: hyphens and apostrophes are ignored
  --explain-collation NAME
                       print what a collator name means, and some words in its order
  --list-locales [PATTERN]
                       print the locales that there are, with their names and short dates, or those whose name has a match
                       of a regular expression, upper or lower case: --list-locales '^sv_|finland'

How cells become values and values are written, with every task
  --cast COLUMN:TYPE   the column is of this type, whatever its cells look like: integer, real, date, datetime, string or
                       spatial. What does not cast becomes %error%, is counted apart from the nulls, and the first such
                       cells are shown with their lines. May be given again
  --format COLUMN=FORMAT
                       print a column of numbers, and its sums, means and extremes, by an encoded number format:
                       wind=n#,##0.00;(#,##0.00) or wind=p0.0% or wind=e0.00e+00. Separators are those of the locale in
                       the format, n!de_DE!#,##0, or of --locale, or English. May be given again
  --as FORM            write rows for other programs: values (the text of a document, below a line of attributes for
                       each column), literals (of a query), or wkt (as values, with shapes as WKT)

How dates are read and printed, with every task
  --dates-in LOCALE    columns of texts that are dates as people write them in the locale become columns of dates.
                       Below the columns stand the pattern that reads most cells, how many are written in another
                       way, and how many are dates with the day first and with the month first
  --dates-as PATTERN   print dates by a pattern in ICU's letters, "d. MMMM yyyy", in the words of --locale or else of the
                       user's locale
  --date-order LOCALE  print in which order a locale writes day, month and year

  --language LANG      print headings and messages in a language: de, es, fr and ja are there, English stands for others

  --help               print this text, in English

Exit code: 0, or 2 with one line on standard error if the file or the options are bad.
)";

}  // namespace typedtable
