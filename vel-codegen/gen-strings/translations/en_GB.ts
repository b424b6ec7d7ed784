<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="en_GB">
<context>
    <name>IDP_DATE_PARSE_ERROR</name>
    <message>
        <source>Error parsing date '%1'</source>
        <translation>Error parsing date '%1'</translation>
    </message>
</context>
<context>
    <name>IDP_STRINGUTILS_MISMATCH_QUOTE</name>
    <message>
        <source>Mismatched quote in '%1'</source>
        <translation>Mismatched quote in '%1'</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_FEW_VALUES</name>
    <message>
        <source>%1 &amp; %2</source>
        <translation>%1 &amp; %2</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_MANY_VALUES</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 and %2 more</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_DAY</name>
    <message>
        <source>Day</source>
        <translation>Day</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEK</name>
    <message>
        <source>Week Number</source>
        <translation>Week Number</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEKDAY</name>
    <message>
        <source>Weekday</source>
        <translation>Weekday</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_YEAR</name>
    <message>
        <source>Year</source>
        <translation>Year</translation>
    </message>
</context>
<context>
    <name>IDS_DASH_LAYOUT_SPACING_COLOR_RGB</name>
    <message>
        <source>rgb (%1,%2,%3)</source>
        <translation>rgb (%1,%2,%3)</translation>
    </message>
</context>
<context>
    <name>IDS_DASH_LAYOUT_SPACING_COLOR_RGBA</name>
    <message>
        <source>rgba (%1,%2,%3,%4)</source>
        <translation>rgba (%1,%2,%3,%4)</translation>
    </message>
</context>
<context>
    <name>IDS_DATETIME_ERROR</name>
    <message>
        <source>Invalid datetime value</source>
        <translation>Invalid datetime value</translation>
    </message>
</context>
<context>
    <name>IDS_DEFAULT_NEG_FMT</name>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_BRACKET_MISMATCH</name>
    <message>
        <source>Invalid input: mismatched brackets</source>
        <translation>Invalid input: mismatched brackets</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_DOT</name>
    <message>
        <source>Invalid input: dangling '.'</source>
        <translation>Invalid input: dangling '.'</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_LBRACKET</name>
    <message>
        <source>Invalid input: dangling '['</source>
        <translation>Invalid input: dangling '['</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_DOT</name>
    <message>
        <source>Invalid input: expected '.'</source>
        <translation>Invalid input: expected '.'</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_LBRACKET</name>
    <message>
        <source>Invalid input: expected '['</source>
        <translation>Invalid input: expected '['</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_GET</name>
    <message>
        <source>Incorrect data type %2, getting expected %1 type.</source>
        <translation>Incorrect data type %2, getting expected %1 type.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_SET</name>
    <message>
        <source>Incorrect data type %2, setting expected %1 type.</source>
        <translation>Incorrect data type %2, setting expected %1 type.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_PARSING_NUMBER</name>
    <message>
        <source>Error parsing number</source>
        <translation>Error parsing number</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_DECODING</name>
    <message>
        <source>XML enumerated value cannot be decoded.</source>
        <translation>XML enumerated value cannot be decoded.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_ENCODING</name>
    <message>
        <source>XML enumerated value cannot be encoded.</source>
        <translation>XML enumerated value cannot be encoded.</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_QUARTER_EXAMPLE</name>
    <message>
        <source>Q4</source>
        <translation>Q4</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_WEEKDAY_EXAMPLE</name>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_WEEK_EXAMPLE</name>
    <message>
        <source>W42</source>
        <translation>W42</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_YEAR_EXAMPLE</name>
    <message>
        <source>2015</source>
        <translation>2015</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_DAY_EXAMPLE</name>
    <message>
        <source>2015-W42-4</source>
        <translation>2015-W42-4</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_QUARTER_EXAMPLE</name>
    <message>
        <source>2015 Q4</source>
        <translation>2015 Q4</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_WEEKDAY_EXAMPLE</name>
    <message>
        <source>Oct 15, 2015</source>
        <translation>15 Oct 2015</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_WEEK_EXAMPLE</name>
    <message>
        <source>2015-W42</source>
        <translation>2015-W42</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_YEAR_EXAMPLE</name>
    <message>
        <source>2015</source>
        <translation>2015</translation>
    </message>
</context>
<context>
    <name>IDS_NO_FILL</name>
    <message>
        <source>No Fill</source>
        <translation>No Fill</translation>
    </message>
</context>
<context>
    <name>IDS_STRINGUTILS_MISSING_SEPARATOR</name>
    <message>
        <source>Missing separator parameter</source>
        <translation>Missing separator parameter</translation>
    </message>
</context>
<context>
    <name>IDS_STRING_COMPARISON_ERROR</name>
    <message>
        <source>String comparison error.</source>
        <translation>String comparison error.</translation>
    </message>
</context>
<context>
    <name>IDS_VALUE_LIST_NO_VALUES</name>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
</context>
<context>
    <name>IDS_VALUE_LIST_SEPARATOR</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AUTOMATIC</name>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUELIGHT</name>
    <message>
        <source>Light Blue Classic</source>
        <translation>Light Blue Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUEREDBROWN_10_0</name>
    <message>
        <source>Blue-Red-Brown</source>
        <translation>Blue-Red-Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_10_0</name>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_TEAL_10_0</name>
    <message>
        <source>Blue-Teal</source>
        <translation>Blue-Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BROWN_10_0</name>
    <message>
        <source>Brown</source>
        <translation>Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_COLORBLIND_10_0</name>
    <message>
        <source>Color Blind</source>
        <translation>Colour Blind</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMDIVERGING</name>
    <message>
        <source>Custom Diverging</source>
        <translation>Custom Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMSEQUENTIAL</name>
    <message>
        <source>Custom Sequential</source>
        <translation>Custom Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC</name>
    <message>
        <source>Cyclic Classic</source>
        <translation>Cyclic Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC_10_0</name>
    <message>
        <source>Cyclic</source>
        <translation>Cyclic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GOLD_PURPLE_DIVERGING_10_0</name>
    <message>
        <source>Gold-Purple Diverging</source>
        <translation>Gold-Purple Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRANITE_STONE_10_0</name>
    <message>
        <source>Granite Stone</source>
        <translation>Granite Stone</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY</name>
    <message>
        <source>Gray Classic</source>
        <translation>Grey Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY5</name>
    <message>
        <source>Gray 5 Classic</source>
        <translation>Grey 5 Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_10_0</name>
    <message>
        <source>Gray</source>
        <translation>Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_WARM_10_0</name>
    <message>
        <source>Warm Gray</source>
        <translation>Warm Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN</name>
    <message>
        <source>Green Classic</source>
        <translation>Green Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENBLUE</name>
    <message>
        <source>Green-Blue Classic</source>
        <translation>Green-Blue Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENLIGHT</name>
    <message>
        <source>Light Green Classic</source>
        <translation>Light Green Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENORANGETEAL_10_0</name>
    <message>
        <source>Green-Orange-Teal</source>
        <translation>Green-Orange-Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_10_0</name>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue Diverging</source>
        <translation>Green-Blue Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue-White Diverging</source>
        <translation>Green-Blue-White Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_GOLD_10_0</name>
    <message>
        <source>Green-Gold</source>
        <translation>Green-Gold</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_JEWEL_BRIGHT_10_0</name>
    <message>
        <source>Jewel Bright</source>
        <translation>Jewel Bright</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LEGACY</name>
    <message>
        <source>Legacy</source>
        <translation>Legacy</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MARBLE_STONE_10_0</name>
    <message>
        <source>Marble Stone</source>
        <translation>Marble Stone</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE</name>
    <message>
        <source>Orange Classic</source>
        <translation>Orange Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUE</name>
    <message>
        <source>Orange-Blue Classic</source>
        <translation>Orange-Blue Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUELIGHT</name>
    <message>
        <source>Light Orange-Blue Classic</source>
        <translation>Light Orange-Blue Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGELIGHT</name>
    <message>
        <source>Light Orange Classic</source>
        <translation>Light Orange Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUE</name>
    <message>
        <source>Orange-White-Blue Classic</source>
        <translation>Orange-White-Blue Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUELIGHT</name>
    <message>
        <source>Light Orange-White-Blue Classic</source>
        <translation>Light Orange-White-Blue Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_10_0</name>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_10_0</name>
    <message>
        <source>Orange-Blue</source>
        <translation>Orange-Blue</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Orange-Blue-White Diverging</source>
        <translation>Orange-Blue-White Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_GOLD_10_0</name>
    <message>
        <source>Orange-Gold</source>
        <translation>Orange-Gold</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PEBBLE_STONE_10_0</name>
    <message>
        <source>Pebble Stone</source>
        <translation>Pebble Stone</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLEPINKGRAY_10_0</name>
    <message>
        <source>Purple-Pink-Gray</source>
        <translation>Purple-Pink-Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLE_10_0</name>
    <message>
        <source>Purple</source>
        <translation>Purple</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED</name>
    <message>
        <source>Red Classic</source>
        <translation>Red Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLACK</name>
    <message>
        <source>Red-Black Classic</source>
        <translation>Red-Black Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLUE</name>
    <message>
        <source>Red-Blue Classic</source>
        <translation>Red-Blue Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREEN</name>
    <message>
        <source>Red-Green Classic</source>
        <translation>Red-Green Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREENLIGHT</name>
    <message>
        <source>Light Red-Green Classic</source>
        <translation>Light Red-Green Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDLIGHT</name>
    <message>
        <source>Light Red Classic</source>
        <translation>Light Red Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACK</name>
    <message>
        <source>Red-White-Black Classic</source>
        <translation>Red-White-Black Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACKLIGHT</name>
    <message>
        <source>Light Red-White-Black Classic</source>
        <translation>Light Red-White-Black Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREEN</name>
    <message>
        <source>Red-White-Green Classic</source>
        <translation>Red-White-Green Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREENLIGHT</name>
    <message>
        <source>Light Red-White-Green Classic</source>
        <translation>Light Red-White-Green Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_10_0</name>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_10_0</name>
    <message>
        <source>Red-Black</source>
        <translation>Red-Black</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Black-White Diverging</source>
        <translation>Red-Black-White Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue Diverging</source>
        <translation>Red-Blue Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue-White Diverging</source>
        <translation>Red-Blue-White Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_10_0</name>
    <message>
        <source>Red-Gold</source>
        <translation>Red-Gold</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_GREEN_10_0</name>
    <message>
        <source>Red-Gold-Green</source>
        <translation>Red-Gold-Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_DIVERGING_10_0</name>
    <message>
        <source>Red-Green Diverging</source>
        <translation>Red-Green Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_GOLD_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-Gold Diverging</source>
        <translation>Red-Green-Gold Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-White Diverging</source>
        <translation>Red-Green-White Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SEATTLE_GRAYS</name>
    <message>
        <source>Seattle Grays</source>
        <translation>Seattle Greys</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUMMER_10_0</name>
    <message>
        <source>Summer</source>
        <translation>Summer</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUNRISE_SUNSET_DIVERGING_10_0</name>
    <message>
        <source>Sunrise-Sunset Diverging</source>
        <translation>Sunrise-Sunset Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_10_0</name>
    <message>
        <source>Veltria 10</source>
        <translation>Veltria 10</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_CLASSIC</name>
    <message>
        <source>Veltria 10 Classic</source>
        <translation>Veltria 10 Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_MEDIUM_CLASSIC</name>
    <message>
        <source>Veltria 10 Medium Classic</source>
        <translation>Veltria 10 Medium Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA20_10_0</name>
    <message>
        <source>Veltria 20</source>
        <translation>Veltria 20</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA20_CLASSIC</name>
    <message>
        <source>Veltria 20 Classic</source>
        <translation>Veltria 20 Classic</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_WINTER_10_0</name>
    <message>
        <source>Winter</source>
        <translation>Winter</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_GREEN</name>
    <message>
        <source>Area Green Sequential</source>
        <translation>Area Green Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED</name>
    <message>
        <source>Area Red Sequential</source>
        <translation>Area Red Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED_GREEN</name>
    <message>
        <source>Area Red-Green Diverging</source>
        <translation>Area Red-Green Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE75_SEQUENTIAL</name>
    <message>
        <source>Band Blue 75 Sequential</source>
        <translation>Band Blue 75 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE80_SEQUENTIAL</name>
    <message>
        <source>Band Blue 80 Sequential</source>
        <translation>Band Blue 80 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD75_SEQUENTIAL</name>
    <message>
        <source>Band Gold 75 Sequential</source>
        <translation>Band Gold 75 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD80_SEQUENTIAL</name>
    <message>
        <source>Band Gold 80 Sequential</source>
        <translation>Band Gold 80 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY65_SEQUENTIAL</name>
    <message>
        <source>Band Gray 65 Sequential</source>
        <translation>Band Grey 65 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY75_SEQUENTIAL</name>
    <message>
        <source>Band Gray 75 Sequential</source>
        <translation>Band Grey 75 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY80_SEQUENTIAL</name>
    <message>
        <source>Band Gray 80 Sequential</source>
        <translation>Band Grey 80 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY85_SEQUENTIAL</name>
    <message>
        <source>Band Gray 85 Sequential</source>
        <translation>Band Grey 85 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY88_SEQUENTIAL</name>
    <message>
        <source>Band Gray 88 Sequential</source>
        <translation>Band Grey 88 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN75_SEQUENTIAL</name>
    <message>
        <source>Band Green 75 Sequential</source>
        <translation>Band Green 75 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN80_SEQUENTIAL</name>
    <message>
        <source>Band Green 80 Sequential</source>
        <translation>Band Green 80 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_STOPLIGHT_SEQUENTIAL</name>
    <message>
        <source>Band Stoplight Sequential</source>
        <translation>Band Traffic Light Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN75_SEQUENTIAL</name>
    <message>
        <source>Band Tan 75 Sequential</source>
        <translation>Band Tan 75 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN80_SEQUENTIAL</name>
    <message>
        <source>Band Tan 80 Sequential</source>
        <translation>Band Tan 80 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN_GREEN_SEQUENTIAL</name>
    <message>
        <source>Band Tan-Green Sequential</source>
        <translation>Band Tan-Green Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL75_SEQUENTIAL</name>
    <message>
        <source>Band Teal 75 Sequential</source>
        <translation>Band Teal 75 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL80_SEQUENTIAL</name>
    <message>
        <source>Band Teal 80 Sequential</source>
        <translation>Band Teal 80 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TINT88_SEQUENTIAL</name>
    <message>
        <source>Band Tint 88 Sequential</source>
        <translation>Band Tint 88 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Blue Sequential</source>
        <translation>Box Plot Blue Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BRIGHTBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Bright Blue Sequential</source>
        <translation>Box Plot Bright Blue Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BROWN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Brown Sequential</source>
        <translation>Box Plot Brown Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_FOREST_SEQUENTIAL</name>
    <message>
        <source>Box Plot Forest Sequential</source>
        <translation>Box Plot Forest Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY30_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 30 Sequential</source>
        <translation>Box Plot Grey 30 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY40_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 40 Sequential</source>
        <translation>Box Plot Grey 40 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY50_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 50 Sequential</source>
        <translation>Box Plot Grey 50 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY60_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 60 Sequential</source>
        <translation>Box Plot Grey 60 Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAYBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray-Blue Sequential</source>
        <translation>Box Plot Grey-Blue Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Green Sequential</source>
        <translation>Box Plot Green Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_LTGREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Light Green Sequential</source>
        <translation>Box Plot Light Green Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Purple Sequential</source>
        <translation>Box Plot Purple Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_RED_SEQUENTIAL</name>
    <message>
        <source>Box Plot Red Sequential</source>
        <translation>Box Plot Red Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_TEAL_SEQUENTIAL</name>
    <message>
        <source>Box Plot Teal Sequential</source>
        <translation>Box Plot Teal Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_YELLOW_SEQUENTIAL</name>
    <message>
        <source>Box Plot Yellow Sequential</source>
        <translation>Box Plot Yellow Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_BLUE</name>
    <message>
        <source>Density Dark Blue</source>
        <translation>Density Dark Blue</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GOLD</name>
    <message>
        <source>Density Dark Gold</source>
        <translation>Density Dark Gold</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GREEN</name>
    <message>
        <source>Density Dark Green</source>
        <translation>Density Dark Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_MULTICOLOR</name>
    <message>
        <source>Density Dark Multicolor</source>
        <translation>Density Dark Multicolour</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_RED</name>
    <message>
        <source>Density Dark Red</source>
        <translation>Density Dark Red</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_BLUETEAL</name>
    <message>
        <source>Density Light Blue-Teal</source>
        <translation>Density Light Blue-Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYRED</name>
    <message>
        <source>Density Light Gray-Red</source>
        <translation>Density Light Grey-Red</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYTEAL</name>
    <message>
        <source>Density Light Gray-Teal</source>
        <translation>Density Light Grey-Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_MULTICOLOR</name>
    <message>
        <source>Density Light Multicolor</source>
        <translation>Density Light Multicolour</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_ORANGE</name>
    <message>
        <source>Density Light Orange</source>
        <translation>Density Light Orange</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_BLUEGRASS</name>
    <message>
        <source>Lightning Bluegrass</source>
        <translation>Lightning Bluegrass</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_COLOR_SAFE</name>
    <message>
        <source>Lightning Color Safe</source>
        <translation>Lightning Colour Safe</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DARK</name>
    <message>
        <source>Lightning Dark</source>
        <translation>Lightning Dark</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DEFAULT</name>
    <message>
        <source>Lightning Default</source>
        <translation>Lightning Default</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_LIGHT</name>
    <message>
        <source>Lightning Light</source>
        <translation>Lightning Light</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_SUNRISE</name>
    <message>
        <source>Lightning Sunrise</source>
        <translation>Lightning Sunrise</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATER</name>
    <message>
        <source>Lightning Water</source>
        <translation>Lightning Water</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATERMELON</name>
    <message>
        <source>Lightning Watermelon</source>
        <translation>Lightning Watermelon</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BLUE_GREEN_SEQUENTIAL</name>
    <message>
        <source>Map Blue-Green Sequential</source>
        <translation>Map Blue-Green Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BROWN_SEQUENTIAL</name>
    <message>
        <source>Map Brown Sequential</source>
        <translation>Map Brown Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_GREY_SEQUENTIAL</name>
    <message>
        <source>Map Gray Sequential</source>
        <translation>Map Grey Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_LIGHT_RED_GREEN_DIVERGING</name>
    <message>
        <source>Map Light Red-Green Diverging</source>
        <translation>Map Light Red-Green Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_ORANGE_BLUE_DIVERGING</name>
    <message>
        <source>Map Orange-Blue Diverging</source>
        <translation>Map Orange-Blue Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Map Purple Sequential</source>
        <translation>Map Purple Sequential</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_TEMPERATURE_DIVERGING</name>
    <message>
        <source>Map Temperature Diverging</source>
        <translation>Map Temperature Diverging</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLACK</name>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLUE</name>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BROWN</name>
    <message>
        <source>Brown</source>
        <translation>Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BLUE</name>
    <message>
        <source>Dark Blue</source>
        <translation>Dark Blue</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BROWN</name>
    <message>
        <source>Dark Brown</source>
        <translation>Dark Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GRAY</name>
    <message>
        <source>Dark Gray</source>
        <translation>Dark Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GREEN</name>
    <message>
        <source>Dark Green</source>
        <translation>Dark Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_ORANGE</name>
    <message>
        <source>Brown</source>
        <translation>Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PINK</name>
    <message>
        <source>Dark Pink</source>
        <translation>Dark Pink</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PURPLE</name>
    <message>
        <source>Dark Purple</source>
        <translation>Dark Purple</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_RED</name>
    <message>
        <source>Dark Red</source>
        <translation>Dark Red</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_TEAL</name>
    <message>
        <source>Dark Teal</source>
        <translation>Dark Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW</name>
    <message>
        <source>Olive Green</source>
        <translation>Olive Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Yellow-Green</source>
        <translation>Dark Yellow-Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GRAY</name>
    <message>
        <source>Gray</source>
        <translation>Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GREEN</name>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BLUE</name>
    <message>
        <source>Light Blue</source>
        <translation>Light Blue</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BROWN</name>
    <message>
        <source>Light Brown</source>
        <translation>Light Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GRAY</name>
    <message>
        <source>Light Gray</source>
        <translation>Light Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GREEN</name>
    <message>
        <source>Light Green</source>
        <translation>Light Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_ORANGE</name>
    <message>
        <source>Light Orange</source>
        <translation>Light Orange</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PINK</name>
    <message>
        <source>Light Pink</source>
        <translation>Light Pink</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PURPLE</name>
    <message>
        <source>Light Purple</source>
        <translation>Light Purple</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_RED</name>
    <message>
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_TEAL</name>
    <message>
        <source>Light Teal</source>
        <translation>Light Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW</name>
    <message>
        <source>Light Yellow</source>
        <translation>Light Yellow</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Light Yellow-Green</source>
        <translation>Light Yellow-Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_ORANGE</name>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PINK</name>
    <message>
        <source>Pink</source>
        <translation>Pink</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PURPLE</name>
    <message>
        <source>Purple</source>
        <translation>Purple</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_RED</name>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_TEAL</name>
    <message>
        <source>Teal</source>
        <translation>Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BLUE</name>
    <message>
        <source>Very Dark Blue</source>
        <translation>Very Dark Blue</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BROWN</name>
    <message>
        <source>Very Dark Brown</source>
        <translation>Very Dark Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GRAY</name>
    <message>
        <source>Very Dark Gray</source>
        <translation>Very Dark Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GREEN</name>
    <message>
        <source>Very Dark Green</source>
        <translation>Very Dark Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_ORANGE</name>
    <message>
        <source>Very Dark Orange</source>
        <translation>Very Dark Orange</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PINK</name>
    <message>
        <source>Very Dark Pink</source>
        <translation>Very Dark Pink</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PURPLE</name>
    <message>
        <source>Very Dark Purple</source>
        <translation>Very Dark Purple</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_RED</name>
    <message>
        <source>Brown</source>
        <translation>Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_TEAL</name>
    <message>
        <source>Very Dark Teal</source>
        <translation>Very Dark Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW</name>
    <message>
        <source>Dark Gray</source>
        <translation>Dark Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Gray</source>
        <translation>Dark Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BLUE</name>
    <message>
        <source>Very Light Blue</source>
        <translation>Very Light Blue</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BROWN</name>
    <message>
        <source>Very Light Brown</source>
        <translation>Very Light Brown</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GRAY</name>
    <message>
        <source>Very Light Gray</source>
        <translation>Very Light Grey</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GREEN</name>
    <message>
        <source>Very Light Green</source>
        <translation>Very Light Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_ORANGE</name>
    <message>
        <source>Beige</source>
        <translation>Beige</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_PINK</name>
    <message>
        <source>Very Light Pink</source>
        <translation>Very Light Pink</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_PURPLE</name>
    <message>
        <source>Very Light Purple</source>
        <translation>Very Light Purple</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_RED</name>
    <message>
        <source>Very Light Red</source>
        <translation>Very Light Red</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_TEAL</name>
    <message>
        <source>Very Light Teal</source>
        <translation>Very Light Teal</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW</name>
    <message>
        <source>Very Light Yellow</source>
        <translation>Very Light Yellow</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Very Light Yellow-Green</source>
        <translation>Very Light Yellow-Green</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_WHITE</name>
    <message>
        <source>White</source>
        <translation>White</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW</name>
    <message>
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW_GREEN</name>
    <message>
        <source>Yellow-Green</source>
        <translation>Yellow-Green</translation>
    </message>
</context>
</TS>
