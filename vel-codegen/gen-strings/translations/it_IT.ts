<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="it_IT">
<context>
    <name>IDP_DATE_PARSE_ERROR</name>
    <message>
        <source>Error parsing date '%1'</source>
        <translation>Errore durante l’analisi della data “%1”</translation>
    </message>
</context>
<context>
    <name>IDP_STRINGUTILS_MISMATCH_QUOTE</name>
    <message>
        <source>Mismatched quote in '%1'</source>
        <translation>Virgolette non corrispondenti in “%1”</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_FEW_VALUES</name>
    <message>
        <source>%1 &amp; %2</source>
        <translation>%1 e %2</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_MANY_VALUES</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_DAY</name>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEK</name>
    <message>
        <source>Week Number</source>
        <translation>Numero della settimana</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEKDAY</name>
    <message>
        <source>Weekday</source>
        <translation>Giorno della settimana</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_YEAR</name>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
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
        <translation>Valore di data e ora non valido</translation>
    </message>
</context>
<context>
    <name>IDS_DEFAULT_NEG_FMT</name>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_BRACKET_MISMATCH</name>
    <message>
        <source>Invalid input: mismatched brackets</source>
        <translation>Input non valido: parentesi non corrispondenti</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_DOT</name>
    <message>
        <source>Invalid input: dangling '.'</source>
        <translation>Input non valido: “.” senza seguito</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_LBRACKET</name>
    <message>
        <source>Invalid input: dangling '['</source>
        <translation>Input non valido: “[” senza seguito</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_DOT</name>
    <message>
        <source>Invalid input: expected '.'</source>
        <translation>Input non valido: previsto “.”</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_LBRACKET</name>
    <message>
        <source>Invalid input: expected '['</source>
        <translation>Input non valido: previsto “[”</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_GET</name>
    <message>
        <source>Incorrect data type %2, getting expected %1 type.</source>
        <translation>Tipo di dati %2 errato durante la lettura del tipo previsto %1.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_SET</name>
    <message>
        <source>Incorrect data type %2, setting expected %1 type.</source>
        <translation>Tipo di dati %2 errato durante l’impostazione del tipo previsto %1.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_PARSING_NUMBER</name>
    <message>
        <source>Error parsing number</source>
        <translation>Errore durante l’analisi del numero</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_DECODING</name>
    <message>
        <source>XML enumerated value cannot be decoded.</source>
        <translation>Impossibile decodificare il valore di enumerazione XML.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_ENCODING</name>
    <message>
        <source>XML enumerated value cannot be encoded.</source>
        <translation>Impossibile codificare il valore di enumerazione XML.</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_BIN_QUARTER_EXAMPLE</name>
    <message>
        <source>Q4</source>
        <translation>T4</translation>
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
        <translation>2015 T4</translation>
    </message>
</context>
<context>
    <name>IDS_ISO8601_TRUNC_WEEKDAY_EXAMPLE</name>
    <message>
        <source>Oct 15, 2015</source>
        <translation>15 ott 2015</translation>
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
        <translation>Nessun riempimento</translation>
    </message>
</context>
<context>
    <name>IDS_STRINGUTILS_MISSING_SEPARATOR</name>
    <message>
        <source>Missing separator parameter</source>
        <translation>Parametro separatore mancante</translation>
    </message>
</context>
<context>
    <name>IDS_STRING_COMPARISON_ERROR</name>
    <message>
        <source>String comparison error.</source>
        <translation>Errore nel confronto tra stringhe.</translation>
    </message>
</context>
<context>
    <name>IDS_VALUE_LIST_NO_VALUES</name>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
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
        <translation>Automatico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUELIGHT</name>
    <message>
        <source>Light Blue Classic</source>
        <translation>Blu chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUEREDBROWN_10_0</name>
    <message>
        <source>Blue-Red-Brown</source>
        <translation>Blu-rosso-marrone</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_10_0</name>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_TEAL_10_0</name>
    <message>
        <source>Blue-Teal</source>
        <translation>Blu-verde acqua</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BROWN_10_0</name>
    <message>
        <source>Brown</source>
        <translation>Marrone</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_COLORBLIND_10_0</name>
    <message>
        <source>Color Blind</source>
        <translation>Daltonico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMDIVERGING</name>
    <message>
        <source>Custom Diverging</source>
        <translation>Divergente personalizzato</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMSEQUENTIAL</name>
    <message>
        <source>Custom Sequential</source>
        <translation>Sequenziale personalizzato</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC</name>
    <message>
        <source>Cyclic Classic</source>
        <translation>Ciclico classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC_10_0</name>
    <message>
        <source>Cyclic</source>
        <translation>Ciclico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GOLD_PURPLE_DIVERGING_10_0</name>
    <message>
        <source>Gold-Purple Diverging</source>
        <translation>Oro-viola divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRANITE_STONE_10_0</name>
    <message>
        <source>Granite Stone</source>
        <translation>Granito</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY</name>
    <message>
        <source>Gray Classic</source>
        <translation>Grigio classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY5</name>
    <message>
        <source>Gray 5 Classic</source>
        <translation>Grigio 5 classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_10_0</name>
    <message>
        <source>Gray</source>
        <translation>Grigio</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_WARM_10_0</name>
    <message>
        <source>Warm Gray</source>
        <translation>Grigio caldo</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN</name>
    <message>
        <source>Green Classic</source>
        <translation>Verde classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENBLUE</name>
    <message>
        <source>Green-Blue Classic</source>
        <translation>Verde-blu classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENLIGHT</name>
    <message>
        <source>Light Green Classic</source>
        <translation>Verde chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENORANGETEAL_10_0</name>
    <message>
        <source>Green-Orange-Teal</source>
        <translation>Verde-arancione-verde acqua</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_10_0</name>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue Diverging</source>
        <translation>Verde-blu divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue-White Diverging</source>
        <translation>Verde-blu-bianco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_GOLD_10_0</name>
    <message>
        <source>Green-Gold</source>
        <translation>Verde-oro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_JEWEL_BRIGHT_10_0</name>
    <message>
        <source>Jewel Bright</source>
        <translation>Gioielli brillanti</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LEGACY</name>
    <message>
        <source>Legacy</source>
        <translation>Precedente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MARBLE_STONE_10_0</name>
    <message>
        <source>Marble Stone</source>
        <translation>Marmo</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE</name>
    <message>
        <source>Orange Classic</source>
        <translation>Arancione classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUE</name>
    <message>
        <source>Orange-Blue Classic</source>
        <translation>Arancione-blu classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUELIGHT</name>
    <message>
        <source>Light Orange-Blue Classic</source>
        <translation>Arancione-blu chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGELIGHT</name>
    <message>
        <source>Light Orange Classic</source>
        <translation>Arancione chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUE</name>
    <message>
        <source>Orange-White-Blue Classic</source>
        <translation>Arancione-bianco-blu classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUELIGHT</name>
    <message>
        <source>Light Orange-White-Blue Classic</source>
        <translation>Arancione-bianco-blu chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_10_0</name>
    <message>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_10_0</name>
    <message>
        <source>Orange-Blue</source>
        <translation>Arancione-blu</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Orange-Blue-White Diverging</source>
        <translation>Arancione-blu-bianco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_GOLD_10_0</name>
    <message>
        <source>Orange-Gold</source>
        <translation>Arancione-oro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PEBBLE_STONE_10_0</name>
    <message>
        <source>Pebble Stone</source>
        <translation>Ciottolo</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLEPINKGRAY_10_0</name>
    <message>
        <source>Purple-Pink-Gray</source>
        <translation>Viola-rosa-grigio</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLE_10_0</name>
    <message>
        <source>Purple</source>
        <translation>Viola</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED</name>
    <message>
        <source>Red Classic</source>
        <translation>Rosso classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLACK</name>
    <message>
        <source>Red-Black Classic</source>
        <translation>Rosso-nero classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLUE</name>
    <message>
        <source>Red-Blue Classic</source>
        <translation>Rosso-blu classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREEN</name>
    <message>
        <source>Red-Green Classic</source>
        <translation>Rosso-verde classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREENLIGHT</name>
    <message>
        <source>Light Red-Green Classic</source>
        <translation>Rosso-verde chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDLIGHT</name>
    <message>
        <source>Light Red Classic</source>
        <translation>Rosso chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACK</name>
    <message>
        <source>Red-White-Black Classic</source>
        <translation>Rosso-bianco-nero classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACKLIGHT</name>
    <message>
        <source>Light Red-White-Black Classic</source>
        <translation>Rosso-bianco-nero chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREEN</name>
    <message>
        <source>Red-White-Green Classic</source>
        <translation>Rosso-bianco-verde classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREENLIGHT</name>
    <message>
        <source>Light Red-White-Green Classic</source>
        <translation>Rosso-bianco-verde chiaro classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_10_0</name>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_10_0</name>
    <message>
        <source>Red-Black</source>
        <translation>Rosso-nero</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Black-White Diverging</source>
        <translation>Rosso-nero-bianco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue Diverging</source>
        <translation>Rosso-blu divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue-White Diverging</source>
        <translation>Rosso-blu-bianco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_10_0</name>
    <message>
        <source>Red-Gold</source>
        <translation>Rosso-oro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_GREEN_10_0</name>
    <message>
        <source>Red-Gold-Green</source>
        <translation>Rosso-oro-verde</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_DIVERGING_10_0</name>
    <message>
        <source>Red-Green Diverging</source>
        <translation>Rosso-verde divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_GOLD_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-Gold Diverging</source>
        <translation>Rosso-verde-oro divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-White Diverging</source>
        <translation>Rosso-verde-bianco divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SEATTLE_GRAYS</name>
    <message>
        <source>Seattle Grays</source>
        <translation>Grigi di Seattle</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUMMER_10_0</name>
    <message>
        <source>Summer</source>
        <translation>Estate</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUNRISE_SUNSET_DIVERGING_10_0</name>
    <message>
        <source>Sunrise-Sunset Diverging</source>
        <translation>Alba-tramonto divergente</translation>
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
        <translation>Veltria 10 classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_MEDIUM_CLASSIC</name>
    <message>
        <source>Veltria 10 Medium Classic</source>
        <translation>Veltria 10 medio classico</translation>
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
        <translation>Veltria 20 classico</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_WINTER_10_0</name>
    <message>
        <source>Winter</source>
        <translation>Inverno</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_GREEN</name>
    <message>
        <source>Area Green Sequential</source>
        <translation>Area verde sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED</name>
    <message>
        <source>Area Red Sequential</source>
        <translation>Area rosso sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED_GREEN</name>
    <message>
        <source>Area Red-Green Diverging</source>
        <translation>Area rosso-verde divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE75_SEQUENTIAL</name>
    <message>
        <source>Band Blue 75 Sequential</source>
        <translation>Banda blu 75 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE80_SEQUENTIAL</name>
    <message>
        <source>Band Blue 80 Sequential</source>
        <translation>Banda blu 80 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD75_SEQUENTIAL</name>
    <message>
        <source>Band Gold 75 Sequential</source>
        <translation>Banda oro 75 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD80_SEQUENTIAL</name>
    <message>
        <source>Band Gold 80 Sequential</source>
        <translation>Banda oro 80 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY65_SEQUENTIAL</name>
    <message>
        <source>Band Gray 65 Sequential</source>
        <translation>Banda grigio 65 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY75_SEQUENTIAL</name>
    <message>
        <source>Band Gray 75 Sequential</source>
        <translation>Banda grigio 75 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY80_SEQUENTIAL</name>
    <message>
        <source>Band Gray 80 Sequential</source>
        <translation>Banda grigio 80 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY85_SEQUENTIAL</name>
    <message>
        <source>Band Gray 85 Sequential</source>
        <translation>Banda grigio 85 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY88_SEQUENTIAL</name>
    <message>
        <source>Band Gray 88 Sequential</source>
        <translation>Banda grigio 88 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN75_SEQUENTIAL</name>
    <message>
        <source>Band Green 75 Sequential</source>
        <translation>Banda verde 75 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN80_SEQUENTIAL</name>
    <message>
        <source>Band Green 80 Sequential</source>
        <translation>Banda verde 80 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_STOPLIGHT_SEQUENTIAL</name>
    <message>
        <source>Band Stoplight Sequential</source>
        <translation>Banda semaforo sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN75_SEQUENTIAL</name>
    <message>
        <source>Band Tan 75 Sequential</source>
        <translation>Banda marrone chiaro 75 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN80_SEQUENTIAL</name>
    <message>
        <source>Band Tan 80 Sequential</source>
        <translation>Banda marrone chiaro 80 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN_GREEN_SEQUENTIAL</name>
    <message>
        <source>Band Tan-Green Sequential</source>
        <translation>Banda marrone chiaro-verde sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL75_SEQUENTIAL</name>
    <message>
        <source>Band Teal 75 Sequential</source>
        <translation>Banda verde acqua 75 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL80_SEQUENTIAL</name>
    <message>
        <source>Band Teal 80 Sequential</source>
        <translation>Banda verde acqua 80 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TINT88_SEQUENTIAL</name>
    <message>
        <source>Band Tint 88 Sequential</source>
        <translation>Banda tinta 88 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Blue Sequential</source>
        <translation>Box plot blu sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BRIGHTBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Bright Blue Sequential</source>
        <translation>Box plot blu brillante sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BROWN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Brown Sequential</source>
        <translation>Box plot marrone sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_FOREST_SEQUENTIAL</name>
    <message>
        <source>Box Plot Forest Sequential</source>
        <translation>Box plot verde foresta sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY30_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 30 Sequential</source>
        <translation>Box plot grigio 30 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY40_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 40 Sequential</source>
        <translation>Box plot grigio 40 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY50_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 50 Sequential</source>
        <translation>Box plot grigio 50 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY60_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 60 Sequential</source>
        <translation>Box plot grigio 60 sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAYBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray-Blue Sequential</source>
        <translation>Box plot grigio-blu sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Green Sequential</source>
        <translation>Box plot verde sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_LTGREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Light Green Sequential</source>
        <translation>Box plot verde chiaro sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Purple Sequential</source>
        <translation>Box plot viola sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_RED_SEQUENTIAL</name>
    <message>
        <source>Box Plot Red Sequential</source>
        <translation>Box plot rosso sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_TEAL_SEQUENTIAL</name>
    <message>
        <source>Box Plot Teal Sequential</source>
        <translation>Box plot verde acqua sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_YELLOW_SEQUENTIAL</name>
    <message>
        <source>Box Plot Yellow Sequential</source>
        <translation>Box plot giallo sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_BLUE</name>
    <message>
        <source>Density Dark Blue</source>
        <translation>Densità blu scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GOLD</name>
    <message>
        <source>Density Dark Gold</source>
        <translation>Densità oro scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GREEN</name>
    <message>
        <source>Density Dark Green</source>
        <translation>Densità verde scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_MULTICOLOR</name>
    <message>
        <source>Density Dark Multicolor</source>
        <translation>Densità multicolore scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_RED</name>
    <message>
        <source>Density Dark Red</source>
        <translation>Densità rosso scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_BLUETEAL</name>
    <message>
        <source>Density Light Blue-Teal</source>
        <translation>Densità blu-verde acqua chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYRED</name>
    <message>
        <source>Density Light Gray-Red</source>
        <translation>Densità grigio-rosso chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYTEAL</name>
    <message>
        <source>Density Light Gray-Teal</source>
        <translation>Densità grigio-verde acqua chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_MULTICOLOR</name>
    <message>
        <source>Density Light Multicolor</source>
        <translation>Densità multicolore chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_ORANGE</name>
    <message>
        <source>Density Light Orange</source>
        <translation>Densità arancione chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_BLUEGRASS</name>
    <message>
        <source>Lightning Bluegrass</source>
        <translation>Fulmine erba dei prati</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_COLOR_SAFE</name>
    <message>
        <source>Lightning Color Safe</source>
        <translation>Fulmine colori sicuri</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DARK</name>
    <message>
        <source>Lightning Dark</source>
        <translation>Fulmine scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DEFAULT</name>
    <message>
        <source>Lightning Default</source>
        <translation>Fulmine predefinito</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_LIGHT</name>
    <message>
        <source>Lightning Light</source>
        <translation>Fulmine chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_SUNRISE</name>
    <message>
        <source>Lightning Sunrise</source>
        <translation>Fulmine alba</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATER</name>
    <message>
        <source>Lightning Water</source>
        <translation>Fulmine acqua</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATERMELON</name>
    <message>
        <source>Lightning Watermelon</source>
        <translation>Fulmine anguria</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BLUE_GREEN_SEQUENTIAL</name>
    <message>
        <source>Map Blue-Green Sequential</source>
        <translation>Mappa blu-verde sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BROWN_SEQUENTIAL</name>
    <message>
        <source>Map Brown Sequential</source>
        <translation>Mappa marrone sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_GREY_SEQUENTIAL</name>
    <message>
        <source>Map Gray Sequential</source>
        <translation>Mappa grigio sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_LIGHT_RED_GREEN_DIVERGING</name>
    <message>
        <source>Map Light Red-Green Diverging</source>
        <translation>Mappa rosso-verde chiaro divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_ORANGE_BLUE_DIVERGING</name>
    <message>
        <source>Map Orange-Blue Diverging</source>
        <translation>Mappa arancione-blu divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Map Purple Sequential</source>
        <translation>Mappa viola sequenziale</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_TEMPERATURE_DIVERGING</name>
    <message>
        <source>Map Temperature Diverging</source>
        <translation>Mappa temperatura divergente</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLACK</name>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLUE</name>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BROWN</name>
    <message>
        <source>Brown</source>
        <translation>Marrone</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BLUE</name>
    <message>
        <source>Dark Blue</source>
        <translation>Blu scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BROWN</name>
    <message>
        <source>Dark Brown</source>
        <translation>Marrone scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GRAY</name>
    <message>
        <source>Dark Gray</source>
        <translation>Grigio scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GREEN</name>
    <message>
        <source>Dark Green</source>
        <translation>Verde scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_ORANGE</name>
    <message>
        <source>Brown</source>
        <translation>Marrone</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PINK</name>
    <message>
        <source>Dark Pink</source>
        <translation>Rosa scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PURPLE</name>
    <message>
        <source>Dark Purple</source>
        <translation>Viola scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_RED</name>
    <message>
        <source>Dark Red</source>
        <translation>Rosso scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_TEAL</name>
    <message>
        <source>Dark Teal</source>
        <translation>Verde acqua scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW</name>
    <message>
        <source>Olive Green</source>
        <translation>Verde oliva</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Yellow-Green</source>
        <translation>Giallo-verde scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GRAY</name>
    <message>
        <source>Gray</source>
        <translation>Grigio</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GREEN</name>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BLUE</name>
    <message>
        <source>Light Blue</source>
        <translation>Blu chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BROWN</name>
    <message>
        <source>Light Brown</source>
        <translation>Marrone chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GRAY</name>
    <message>
        <source>Light Gray</source>
        <translation>Grigio chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GREEN</name>
    <message>
        <source>Light Green</source>
        <translation>Verde chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_ORANGE</name>
    <message>
        <source>Light Orange</source>
        <translation>Arancione chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PINK</name>
    <message>
        <source>Light Pink</source>
        <translation>Rosa chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PURPLE</name>
    <message>
        <source>Light Purple</source>
        <translation>Viola chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_RED</name>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_TEAL</name>
    <message>
        <source>Light Teal</source>
        <translation>Verde acqua chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW</name>
    <message>
        <source>Light Yellow</source>
        <translation>Giallo chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Light Yellow-Green</source>
        <translation>Giallo-verde chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_ORANGE</name>
    <message>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PINK</name>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PURPLE</name>
    <message>
        <source>Purple</source>
        <translation>Viola</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_RED</name>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_TEAL</name>
    <message>
        <source>Teal</source>
        <translation>Verde acqua</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BLUE</name>
    <message>
        <source>Very Dark Blue</source>
        <translation>Blu molto scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BROWN</name>
    <message>
        <source>Very Dark Brown</source>
        <translation>Marrone molto scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GRAY</name>
    <message>
        <source>Very Dark Gray</source>
        <translation>Grigio molto scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GREEN</name>
    <message>
        <source>Very Dark Green</source>
        <translation>Verde molto scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_ORANGE</name>
    <message>
        <source>Very Dark Orange</source>
        <translation>Arancione molto scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PINK</name>
    <message>
        <source>Very Dark Pink</source>
        <translation>Rosa molto scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PURPLE</name>
    <message>
        <source>Very Dark Purple</source>
        <translation>Viola molto scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_RED</name>
    <message>
        <source>Brown</source>
        <translation>Marrone</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_TEAL</name>
    <message>
        <source>Very Dark Teal</source>
        <translation>Verde acqua molto scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW</name>
    <message>
        <source>Dark Gray</source>
        <translation>Grigio scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Gray</source>
        <translation>Grigio scuro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BLUE</name>
    <message>
        <source>Very Light Blue</source>
        <translation>Blu molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BROWN</name>
    <message>
        <source>Very Light Brown</source>
        <translation>Marrone molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GRAY</name>
    <message>
        <source>Very Light Gray</source>
        <translation>Grigio molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GREEN</name>
    <message>
        <source>Very Light Green</source>
        <translation>Verde molto chiaro</translation>
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
        <translation>Rosa molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_PURPLE</name>
    <message>
        <source>Very Light Purple</source>
        <translation>Viola molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_RED</name>
    <message>
        <source>Very Light Red</source>
        <translation>Rosso molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_TEAL</name>
    <message>
        <source>Very Light Teal</source>
        <translation>Verde acqua molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW</name>
    <message>
        <source>Very Light Yellow</source>
        <translation>Giallo molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Very Light Yellow-Green</source>
        <translation>Giallo-verde molto chiaro</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_WHITE</name>
    <message>
        <source>White</source>
        <translation>Bianco</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW</name>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW_GREEN</name>
    <message>
        <source>Yellow-Green</source>
        <translation>Giallo-verde</translation>
    </message>
</context>
</TS>
