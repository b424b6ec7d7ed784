<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US" language="fr_FR">
<context>
    <name>IDP_DATE_PARSE_ERROR</name>
    <message>
        <source>Error parsing date '%1'</source>
        <translation>Erreur lors de l’analyse de la date « %1 »</translation>
    </message>
</context>
<context>
    <name>IDP_STRINGUTILS_MISMATCH_QUOTE</name>
    <message>
        <source>Mismatched quote in '%1'</source>
        <translation>Guillemet non fermé dans « %1 »</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_FEW_VALUES</name>
    <message>
        <source>%1 &amp; %2</source>
        <translation>%1 et %2</translation>
    </message>
</context>
<context>
    <name>IDP_VALUE_LIST_MANY_VALUES</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_DAY</name>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEK</name>
    <message>
        <source>Week Number</source>
        <translation>Numéro de semaine</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_WEEKDAY</name>
    <message>
        <source>Weekday</source>
        <translation>Jour de la semaine</translation>
    </message>
</context>
<context>
    <name>IDS_AGG_YEAR</name>
    <message>
        <source>Year</source>
        <translation>Année</translation>
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
        <translation>Valeur de date/heure non valide</translation>
    </message>
</context>
<context>
    <name>IDS_DEFAULT_NEG_FMT</name>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_BRACKET_MISMATCH</name>
    <message>
        <source>Invalid input: mismatched brackets</source>
        <translation>Entrée non valide : crochets non appariés</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_DOT</name>
    <message>
        <source>Invalid input: dangling '.'</source>
        <translation>Entrée non valide : « . » sans suite</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_DANGLING_LBRACKET</name>
    <message>
        <source>Invalid input: dangling '['</source>
        <translation>Entrée non valide : « [ » sans suite</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_DOT</name>
    <message>
        <source>Invalid input: expected '.'</source>
        <translation>Entrée non valide : « . » attendu</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_EXPECT_LBRACKET</name>
    <message>
        <source>Invalid input: expected '['</source>
        <translation>Entrée non valide : « [ » attendu</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_GET</name>
    <message>
        <source>Incorrect data type %2, getting expected %1 type.</source>
        <translation>Type de données incorrect %2, lecture du type attendu %1.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_INCORRECT_DATA_TYPE_SET</name>
    <message>
        <source>Incorrect data type %2, setting expected %1 type.</source>
        <translation>Type de données incorrect %2, affectation du type attendu %1.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_PARSING_NUMBER</name>
    <message>
        <source>Error parsing number</source>
        <translation>Erreur lors de l’analyse du nombre</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_DECODING</name>
    <message>
        <source>XML enumerated value cannot be decoded.</source>
        <translation>Impossible de décoder la valeur d’énumération XML.</translation>
    </message>
</context>
<context>
    <name>IDS_ERR_XML_ENUM_ENCODING</name>
    <message>
        <source>XML enumerated value cannot be encoded.</source>
        <translation>Impossible d’encoder la valeur d’énumération XML.</translation>
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
        <translation>15 oct. 2015</translation>
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
        <translation>Aucun remplissage</translation>
    </message>
</context>
<context>
    <name>IDS_STRINGUTILS_MISSING_SEPARATOR</name>
    <message>
        <source>Missing separator parameter</source>
        <translation>Paramètre de séparateur manquant</translation>
    </message>
</context>
<context>
    <name>IDS_STRING_COMPARISON_ERROR</name>
    <message>
        <source>String comparison error.</source>
        <translation>Erreur de comparaison de chaînes.</translation>
    </message>
</context>
<context>
    <name>IDS_VALUE_LIST_NO_VALUES</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
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
        <translation>Automatique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUELIGHT</name>
    <message>
        <source>Light Blue Classic</source>
        <translation>Bleu clair classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUEREDBROWN_10_0</name>
    <message>
        <source>Blue-Red-Brown</source>
        <translation>Bleu-rouge-marron</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_10_0</name>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BLUE_TEAL_10_0</name>
    <message>
        <source>Blue-Teal</source>
        <translation>Bleu-bleu canard</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BROWN_10_0</name>
    <message>
        <source>Brown</source>
        <translation>Marron</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_COLORBLIND_10_0</name>
    <message>
        <source>Color Blind</source>
        <translation>Daltonien</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMDIVERGING</name>
    <message>
        <source>Custom Diverging</source>
        <translation>Divergent personnalisé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CUSTOMSEQUENTIAL</name>
    <message>
        <source>Custom Sequential</source>
        <translation>Séquentiel personnalisé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC</name>
    <message>
        <source>Cyclic Classic</source>
        <translation>Cyclique classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_CYCLIC_10_0</name>
    <message>
        <source>Cyclic</source>
        <translation>Cyclique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GOLD_PURPLE_DIVERGING_10_0</name>
    <message>
        <source>Gold-Purple Diverging</source>
        <translation>Or-violet divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRANITE_STONE_10_0</name>
    <message>
        <source>Granite Stone</source>
        <translation>Granit</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY</name>
    <message>
        <source>Gray Classic</source>
        <translation>Gris classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY5</name>
    <message>
        <source>Gray 5 Classic</source>
        <translation>Gris 5 classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_10_0</name>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GRAY_WARM_10_0</name>
    <message>
        <source>Warm Gray</source>
        <translation>Gris chaud</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN</name>
    <message>
        <source>Green Classic</source>
        <translation>Vert classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENBLUE</name>
    <message>
        <source>Green-Blue Classic</source>
        <translation>Vert-bleu classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENLIGHT</name>
    <message>
        <source>Light Green Classic</source>
        <translation>Vert clair classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREENORANGETEAL_10_0</name>
    <message>
        <source>Green-Orange-Teal</source>
        <translation>Vert-orange-bleu canard</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_10_0</name>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue Diverging</source>
        <translation>Vert-bleu divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Green-Blue-White Diverging</source>
        <translation>Vert-bleu-blanc divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_GREEN_GOLD_10_0</name>
    <message>
        <source>Green-Gold</source>
        <translation>Vert-or</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_JEWEL_BRIGHT_10_0</name>
    <message>
        <source>Jewel Bright</source>
        <translation>Joyaux éclatants</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LEGACY</name>
    <message>
        <source>Legacy</source>
        <translation>Hérité</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MARBLE_STONE_10_0</name>
    <message>
        <source>Marble Stone</source>
        <translation>Marbre</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE</name>
    <message>
        <source>Orange Classic</source>
        <translation>Orange classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUE</name>
    <message>
        <source>Orange-Blue Classic</source>
        <translation>Orange-bleu classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEBLUELIGHT</name>
    <message>
        <source>Light Orange-Blue Classic</source>
        <translation>Orange-bleu clair classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGELIGHT</name>
    <message>
        <source>Light Orange Classic</source>
        <translation>Orange clair classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUE</name>
    <message>
        <source>Orange-White-Blue Classic</source>
        <translation>Orange-blanc-bleu classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGEWHITEBLUELIGHT</name>
    <message>
        <source>Light Orange-White-Blue Classic</source>
        <translation>Orange-blanc-bleu clair classique</translation>
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
        <translation>Orange-bleu</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Orange-Blue-White Diverging</source>
        <translation>Orange-bleu-blanc divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_ORANGE_GOLD_10_0</name>
    <message>
        <source>Orange-Gold</source>
        <translation>Orange-or</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PEBBLE_STONE_10_0</name>
    <message>
        <source>Pebble Stone</source>
        <translation>Galet</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLEPINKGRAY_10_0</name>
    <message>
        <source>Purple-Pink-Gray</source>
        <translation>Violet-rose-gris</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_PURPLE_10_0</name>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED</name>
    <message>
        <source>Red Classic</source>
        <translation>Rouge classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLACK</name>
    <message>
        <source>Red-Black Classic</source>
        <translation>Rouge-noir classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDBLUE</name>
    <message>
        <source>Red-Blue Classic</source>
        <translation>Rouge-bleu classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREEN</name>
    <message>
        <source>Red-Green Classic</source>
        <translation>Rouge-vert classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDGREENLIGHT</name>
    <message>
        <source>Light Red-Green Classic</source>
        <translation>Rouge-vert clair classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDLIGHT</name>
    <message>
        <source>Light Red Classic</source>
        <translation>Rouge clair classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACK</name>
    <message>
        <source>Red-White-Black Classic</source>
        <translation>Rouge-blanc-noir classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEBLACKLIGHT</name>
    <message>
        <source>Light Red-White-Black Classic</source>
        <translation>Rouge-blanc-noir clair classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREEN</name>
    <message>
        <source>Red-White-Green Classic</source>
        <translation>Rouge-blanc-vert classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_REDWHITEGREENLIGHT</name>
    <message>
        <source>Light Red-White-Green Classic</source>
        <translation>Rouge-blanc-vert clair classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_10_0</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_10_0</name>
    <message>
        <source>Red-Black</source>
        <translation>Rouge-noir</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLACK_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Black-White Diverging</source>
        <translation>Rouge-noir-blanc divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue Diverging</source>
        <translation>Rouge-bleu divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_BLUE_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Blue-White Diverging</source>
        <translation>Rouge-bleu-blanc divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_10_0</name>
    <message>
        <source>Red-Gold</source>
        <translation>Rouge-or</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GOLD_GREEN_10_0</name>
    <message>
        <source>Red-Gold-Green</source>
        <translation>Rouge-or-vert</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_DIVERGING_10_0</name>
    <message>
        <source>Red-Green Diverging</source>
        <translation>Rouge-vert divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_GOLD_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-Gold Diverging</source>
        <translation>Rouge-vert-or divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_RED_GREEN_WHITE_DIVERGING_10_0</name>
    <message>
        <source>Red-Green-White Diverging</source>
        <translation>Rouge-vert-blanc divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SEATTLE_GRAYS</name>
    <message>
        <source>Seattle Grays</source>
        <translation>Gris de Seattle</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUMMER_10_0</name>
    <message>
        <source>Summer</source>
        <translation>Été</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_SUNRISE_SUNSET_DIVERGING_10_0</name>
    <message>
        <source>Sunrise-Sunset Diverging</source>
        <translation>Lever-coucher de soleil divergent</translation>
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
        <translation>Veltria 10 classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_VELTRIA10_MEDIUM_CLASSIC</name>
    <message>
        <source>Veltria 10 Medium Classic</source>
        <translation>Veltria 10 moyen classique</translation>
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
        <translation>Veltria 20 classique</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_WINTER_10_0</name>
    <message>
        <source>Winter</source>
        <translation>Hiver</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_GREEN</name>
    <message>
        <source>Area Green Sequential</source>
        <translation>Aire vert séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED</name>
    <message>
        <source>Area Red Sequential</source>
        <translation>Aire rouge séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_AREA_RED_GREEN</name>
    <message>
        <source>Area Red-Green Diverging</source>
        <translation>Aire rouge-vert divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE75_SEQUENTIAL</name>
    <message>
        <source>Band Blue 75 Sequential</source>
        <translation>Bande bleu 75 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_BLUE80_SEQUENTIAL</name>
    <message>
        <source>Band Blue 80 Sequential</source>
        <translation>Bande bleu 80 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD75_SEQUENTIAL</name>
    <message>
        <source>Band Gold 75 Sequential</source>
        <translation>Bande or 75 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GOLD80_SEQUENTIAL</name>
    <message>
        <source>Band Gold 80 Sequential</source>
        <translation>Bande or 80 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY65_SEQUENTIAL</name>
    <message>
        <source>Band Gray 65 Sequential</source>
        <translation>Bande gris 65 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY75_SEQUENTIAL</name>
    <message>
        <source>Band Gray 75 Sequential</source>
        <translation>Bande gris 75 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY80_SEQUENTIAL</name>
    <message>
        <source>Band Gray 80 Sequential</source>
        <translation>Bande gris 80 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY85_SEQUENTIAL</name>
    <message>
        <source>Band Gray 85 Sequential</source>
        <translation>Bande gris 85 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GRAY88_SEQUENTIAL</name>
    <message>
        <source>Band Gray 88 Sequential</source>
        <translation>Bande gris 88 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN75_SEQUENTIAL</name>
    <message>
        <source>Band Green 75 Sequential</source>
        <translation>Bande vert 75 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_GREEN80_SEQUENTIAL</name>
    <message>
        <source>Band Green 80 Sequential</source>
        <translation>Bande vert 80 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_STOPLIGHT_SEQUENTIAL</name>
    <message>
        <source>Band Stoplight Sequential</source>
        <translation>Bande feux tricolores séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN75_SEQUENTIAL</name>
    <message>
        <source>Band Tan 75 Sequential</source>
        <translation>Bande beige brun 75 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN80_SEQUENTIAL</name>
    <message>
        <source>Band Tan 80 Sequential</source>
        <translation>Bande beige brun 80 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TAN_GREEN_SEQUENTIAL</name>
    <message>
        <source>Band Tan-Green Sequential</source>
        <translation>Bande beige brun-vert séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL75_SEQUENTIAL</name>
    <message>
        <source>Band Teal 75 Sequential</source>
        <translation>Bande bleu canard 75 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TEAL80_SEQUENTIAL</name>
    <message>
        <source>Band Teal 80 Sequential</source>
        <translation>Bande bleu canard 80 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BAND_TINT88_SEQUENTIAL</name>
    <message>
        <source>Band Tint 88 Sequential</source>
        <translation>Bande teinte 88 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Blue Sequential</source>
        <translation>Boîte à moustaches bleu séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BRIGHTBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Bright Blue Sequential</source>
        <translation>Boîte à moustaches bleu vif séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_BROWN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Brown Sequential</source>
        <translation>Boîte à moustaches marron séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_FOREST_SEQUENTIAL</name>
    <message>
        <source>Box Plot Forest Sequential</source>
        <translation>Boîte à moustaches vert forêt séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY30_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 30 Sequential</source>
        <translation>Boîte à moustaches gris 30 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY40_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 40 Sequential</source>
        <translation>Boîte à moustaches gris 40 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY50_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 50 Sequential</source>
        <translation>Boîte à moustaches gris 50 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAY60_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray 60 Sequential</source>
        <translation>Boîte à moustaches gris 60 séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GRAYBLUE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Gray-Blue Sequential</source>
        <translation>Boîte à moustaches gris-bleu séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_GREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Green Sequential</source>
        <translation>Boîte à moustaches vert séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_LTGREEN_SEQUENTIAL</name>
    <message>
        <source>Box Plot Light Green Sequential</source>
        <translation>Boîte à moustaches vert clair séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Box Plot Purple Sequential</source>
        <translation>Boîte à moustaches violet séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_RED_SEQUENTIAL</name>
    <message>
        <source>Box Plot Red Sequential</source>
        <translation>Boîte à moustaches rouge séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_TEAL_SEQUENTIAL</name>
    <message>
        <source>Box Plot Teal Sequential</source>
        <translation>Boîte à moustaches bleu canard séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_BOXPLOT_YELLOW_SEQUENTIAL</name>
    <message>
        <source>Box Plot Yellow Sequential</source>
        <translation>Boîte à moustaches jaune séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_BLUE</name>
    <message>
        <source>Density Dark Blue</source>
        <translation>Densité bleu foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GOLD</name>
    <message>
        <source>Density Dark Gold</source>
        <translation>Densité or foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_GREEN</name>
    <message>
        <source>Density Dark Green</source>
        <translation>Densité vert foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_MULTICOLOR</name>
    <message>
        <source>Density Dark Multicolor</source>
        <translation>Densité multicolore foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_DARK_RED</name>
    <message>
        <source>Density Dark Red</source>
        <translation>Densité rouge foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_BLUETEAL</name>
    <message>
        <source>Density Light Blue-Teal</source>
        <translation>Densité bleu-bleu canard clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYRED</name>
    <message>
        <source>Density Light Gray-Red</source>
        <translation>Densité gris-rouge clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_GRAYTEAL</name>
    <message>
        <source>Density Light Gray-Teal</source>
        <translation>Densité gris-bleu canard clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_MULTICOLOR</name>
    <message>
        <source>Density Light Multicolor</source>
        <translation>Densité multicolore clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_DENSITY_LIGHT_ORANGE</name>
    <message>
        <source>Density Light Orange</source>
        <translation>Densité orange clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_BLUEGRASS</name>
    <message>
        <source>Lightning Bluegrass</source>
        <translation>Éclair pâturin</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_COLOR_SAFE</name>
    <message>
        <source>Lightning Color Safe</source>
        <translation>Éclair couleurs sûres</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DARK</name>
    <message>
        <source>Lightning Dark</source>
        <translation>Éclair foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_DEFAULT</name>
    <message>
        <source>Lightning Default</source>
        <translation>Éclair par défaut</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_LIGHT</name>
    <message>
        <source>Lightning Light</source>
        <translation>Éclair clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_SUNRISE</name>
    <message>
        <source>Lightning Sunrise</source>
        <translation>Éclair lever de soleil</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATER</name>
    <message>
        <source>Lightning Water</source>
        <translation>Éclair eau</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_LIGHTNING_WATERMELON</name>
    <message>
        <source>Lightning Watermelon</source>
        <translation>Éclair pastèque</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BLUE_GREEN_SEQUENTIAL</name>
    <message>
        <source>Map Blue-Green Sequential</source>
        <translation>Carte bleu-vert séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_BROWN_SEQUENTIAL</name>
    <message>
        <source>Map Brown Sequential</source>
        <translation>Carte marron séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_GREY_SEQUENTIAL</name>
    <message>
        <source>Map Gray Sequential</source>
        <translation>Carte gris séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_LIGHT_RED_GREEN_DIVERGING</name>
    <message>
        <source>Map Light Red-Green Diverging</source>
        <translation>Carte rouge-vert clair divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_ORANGE_BLUE_DIVERGING</name>
    <message>
        <source>Map Orange-Blue Diverging</source>
        <translation>Carte orange-bleu divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_PURPLE_SEQUENTIAL</name>
    <message>
        <source>Map Purple Sequential</source>
        <translation>Carte violet séquentiel</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_MAP_TEMPERATURE_DIVERGING</name>
    <message>
        <source>Map Temperature Diverging</source>
        <translation>Carte température divergent</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLACK</name>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BLUE</name>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_BROWN</name>
    <message>
        <source>Brown</source>
        <translation>Marron</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BLUE</name>
    <message>
        <source>Dark Blue</source>
        <translation>Bleu foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_BROWN</name>
    <message>
        <source>Dark Brown</source>
        <translation>Marron foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GRAY</name>
    <message>
        <source>Dark Gray</source>
        <translation>Gris foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_GREEN</name>
    <message>
        <source>Dark Green</source>
        <translation>Vert foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_ORANGE</name>
    <message>
        <source>Brown</source>
        <translation>Marron</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PINK</name>
    <message>
        <source>Dark Pink</source>
        <translation>Rose foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_PURPLE</name>
    <message>
        <source>Dark Purple</source>
        <translation>Violet foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_RED</name>
    <message>
        <source>Dark Red</source>
        <translation>Rouge foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_TEAL</name>
    <message>
        <source>Dark Teal</source>
        <translation>Bleu canard foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW</name>
    <message>
        <source>Olive Green</source>
        <translation>Vert olive</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Yellow-Green</source>
        <translation>Jaune-vert foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GRAY</name>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_GREEN</name>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BLUE</name>
    <message>
        <source>Light Blue</source>
        <translation>Bleu clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_BROWN</name>
    <message>
        <source>Light Brown</source>
        <translation>Marron clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GRAY</name>
    <message>
        <source>Light Gray</source>
        <translation>Gris clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_GREEN</name>
    <message>
        <source>Light Green</source>
        <translation>Vert clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_ORANGE</name>
    <message>
        <source>Light Orange</source>
        <translation>Orange clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PINK</name>
    <message>
        <source>Light Pink</source>
        <translation>Rose clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_PURPLE</name>
    <message>
        <source>Light Purple</source>
        <translation>Violet clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_RED</name>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_TEAL</name>
    <message>
        <source>Light Teal</source>
        <translation>Bleu canard clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW</name>
    <message>
        <source>Light Yellow</source>
        <translation>Jaune clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Light Yellow-Green</source>
        <translation>Jaune-vert clair</translation>
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
        <translation>Rose</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_PURPLE</name>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_RED</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_TEAL</name>
    <message>
        <source>Teal</source>
        <translation>Bleu canard</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BLUE</name>
    <message>
        <source>Very Dark Blue</source>
        <translation>Bleu très foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_BROWN</name>
    <message>
        <source>Very Dark Brown</source>
        <translation>Marron très foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GRAY</name>
    <message>
        <source>Very Dark Gray</source>
        <translation>Gris très foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_GREEN</name>
    <message>
        <source>Very Dark Green</source>
        <translation>Vert très foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_ORANGE</name>
    <message>
        <source>Very Dark Orange</source>
        <translation>Orange très foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PINK</name>
    <message>
        <source>Very Dark Pink</source>
        <translation>Rose très foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_PURPLE</name>
    <message>
        <source>Very Dark Purple</source>
        <translation>Violet très foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_RED</name>
    <message>
        <source>Brown</source>
        <translation>Marron</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_TEAL</name>
    <message>
        <source>Very Dark Teal</source>
        <translation>Bleu canard très foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW</name>
    <message>
        <source>Dark Gray</source>
        <translation>Gris foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_DARK_YELLOW_GREEN</name>
    <message>
        <source>Dark Gray</source>
        <translation>Gris foncé</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BLUE</name>
    <message>
        <source>Very Light Blue</source>
        <translation>Bleu très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_BROWN</name>
    <message>
        <source>Very Light Brown</source>
        <translation>Marron très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GRAY</name>
    <message>
        <source>Very Light Gray</source>
        <translation>Gris très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_GREEN</name>
    <message>
        <source>Very Light Green</source>
        <translation>Vert très clair</translation>
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
        <translation>Rose très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_PURPLE</name>
    <message>
        <source>Very Light Purple</source>
        <translation>Violet très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_RED</name>
    <message>
        <source>Very Light Red</source>
        <translation>Rouge très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_TEAL</name>
    <message>
        <source>Very Light Teal</source>
        <translation>Bleu canard très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW</name>
    <message>
        <source>Very Light Yellow</source>
        <translation>Jaune très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_VERY_LIGHT_YELLOW_GREEN</name>
    <message>
        <source>Very Light Yellow-Green</source>
        <translation>Jaune-vert très clair</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_WHITE</name>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW</name>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
</context>
<context>
    <name>IDS_PALETTE_TOOLTIP_YELLOW_GREEN</name>
    <message>
        <source>Yellow-Green</source>
        <translation>Jaune-vert</translation>
    </message>
</context>
</TS>
