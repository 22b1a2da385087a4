"""The application's region of every country, by ISO 3166-1 code. Countries that fit no other region are in "usa"."""

REGIONS = {
    "arab": """AE BH DJ DZ EG EH IQ JO KM KW LB LY MA MR OM PS QA SA SD SO SY TD TN YE""",
    "asia": """AF AS AU BD BN BT CC CK CN CX FJ FM GU HK HM ID IN IO IR JP KG KH KI KP KR KZ LA LK MH
        MM MN MO MP MV MY NC NF NP NR NU NZ PF PG PH PK PN PW SB SG TF TH TJ TK TL TM TO TV TW UM UZ
        VN VU WF WS""",
    "europe": """AD AL AM AT AX AZ BA BE BG BY CH CY CZ DE DK EE ES FI FO FR GB GE GG GI GL GR HR HU
        IE IL IM IS IT JE LI LT LU LV MC MD ME MK MT NL NO PL PT RO RS RU SE SI SJ SK SM TR UA VA""",
    "latina": """AG AI AR AW BB BL BO BQ BR BS BZ CL CO CR CU CW DM DO EC FK GD GF GP GS GT GY HN HT
        JM KN KY LC MF MQ MS MX NI PA PE PR PY SR SV SX TC TT UY VC VE VG VI""",
    "usa": """AO AQ BF BI BJ BM BV BW CA CD CF CG CI CM CV ER ET GA GH GM GN GQ GW KE LR LS MG ML MU
        MW MZ NA NE NG PM RE RW SC SH SL SN SS ST SZ TG TZ UG US YT ZA ZM ZW""",
}


def countries():
    return {code: region for region, codes in REGIONS.items() for code in codes.split()}
