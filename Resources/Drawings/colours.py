"""Values of the colour assets.

Each line: NAME light [dark [light-contrast dark-contrast]] [@notation]. A value is #RRGGBB or
#RRGGBBAA, or a grey level such as =0.96 (gamma 2.2 grey). A line "[Folder notation]" begins a folder
and says how its colours' Contents.json writes red, green and blue: decimal, byte or hex. @notation is for one colour:
p3 (Display P3) and wide (extended sRGB) are decimals in another colour space.
"""

TABLE = """
[Areas/Charts decimal]
chartAnkle #E07A5F #F08A70
chartBlackColor #1C1C1E #F2F2F7
chartBlueColor #3B7DFF #5E96FF
chartBodyFat #F2B134 #FFC658
chartBrightBlueColor #00A8FF #34BCFF @p3
chartButtocks #D65DB1 #E87FC6
chartDarkBlueColor #1F4FB8 #4A78DB
chartDarkGreenColor #1E7A46 #37A566
chartEmpty #E9ECF1 #2C2C30
chartForearm #4D9DE0 #6DB4F0
chartGrayColor #8E95A3 #9AA1AF
chartGreenColor #34B56A #4BCB80
chartGridColor #DDE1E8 #3A3A40
chartHip #845EC2 #A07EDB
chartLightBlueColor #A9CBFF #6F9DE0
chartLightGrayColor #CBD0D9 #5A5F6B
chartLightGreenColor #A8E0BF #64B487
chartLightPurpleColor #CDBFFB #9685D6
chartLightRedColor #F9B3AE #D97A74
chartOrangeColor #FF8A3D #FF9E5E @p3
chartPinkColor #F2639A #FF82B0
chartPurpleColor #7A5CF0 #9780FF
chartRedColor #F0483E #FF6A61 @p3
chartShin #2BB3C0 #4ACBD6
chartTurquoiseColor #19B5A5 #35CDBD
chartVioletColor #A347D1 #BC6BE6
chartWaist #FF6F91 #FF8FAA
chartWrist #6A994E #86B56A
chartYellowColor #FFC93C #FFD65E @p3
[Areas/Payment byte]
paymentCancelledColor #8E95A3 #9AA1AF
paymentErrorColor #E0352B #FF6259
paymentNotPaidColor #F08A24 #FFA24D
paymentPendingColor #3B7DFF #6B9DFF
[Areas/Subscription hex]
subscriptionBackground #FFFFFF #16171C
subscriptionForeground #1C1C1E #FFFFFF #000000 #FFFFFF
subscriptionLink #2F6BEB #7FAAFF #1446B0 #B3CCFF
subscriptionTextDisabled #B4BAC5 #5F6470
subscriptionTextSecondary #6A7180 #A3A9B6 #454B58 #D0D4DC
[Areas/Tags hex]
tagBlueColor #E3EDFF #1C2B4A
tagBlueSelectedColor #3B7DFF #4C88FF
tagBlueTextColor #1F4FB8 #A9C7FF #0F3282 #D6E4FF
tagGreenColor #DFF5E6 #173424
tagGreenSelectedColor #34B56A #3EC276
tagGreenTextColor #1E7A46 #96E0B3 #0E5029 #C9F3DA
tagOrangeColor #FFEBD9 #402A17
tagOrangeTextColor #B4540C #FFC08F #7D3600 #FFE0C7
[Controls byte]
barBackgroundColor #F9F9FB #1B1C20
blockBackgroundColor #FFFFFF #232429
blueTextColor #2F6BEB #7FAAFF #1446B0 #B3CCFF
borderColor #DDE1E8 #3A3B42
brightBlue #0A84FF #409CFF @wide
defaultButtonPressedBackgroundColor #2A63D6 #3A72E6
facebookButton #3463B8
floatingButtonBackgroundColor #3B7DFF #4C88FF
instagramButton #D6337C
orangeButtonPressedBackgroundColor #E0701F #D96A1C
otherButtonForegroundColor #2F6BEB #8CB2FF
pinkSelected #F9588F #FF7BA8 @p3
redButtonPressedBackgroundColor #C92B22 #C7362D
selectedTagButtonBackgroundColor #3B7DFF #4C88FF
selectedTagButtonBorderColor #2A63D6 #7FAAFF
tagButtonBackgroundColor #EFF1F5 #2C2D33
tagButtonForegroundColor #3E4450 #D3D7DF
vkButton #3F78C9
vkButtonPressed #315FA1
[General decimal]
casablanca #F7B24A #F9BE66
curiousBlue #2E90DA #52A8EA
currentWorkoutBorderColor #34B56A #4BCB80
darkBackgroundColor #23283A #0E0F13
darkTextColor #1C1C1E #F2F2F7 #000000 #FFFFFF
darkTextInfo #4A505D #B9BEC9
dimmingColor #00000066 #00000099
extraLightBlueColor #F0F6FF #1A2233
gradientDarkColor #10131D #000000 @wide
infoTextColor #7B8290 #9AA1AF #555B68 #C4C9D3
invoiceBackgroundColor #FFF8E8 #2D2719
labelColor #1C1C1E #FFFFFF
lightBackgroundColor =0.965 =0.11
lightBlue #CFE2FF #2A4270
lightPinkColor #FFE0EC #4A2536
lightTextColor #9AA1AD #7D8491
lightTextWhiteColor =1 =0.92
limitedFeature #F5B301 #FFC53A
placeholderImageTintColor #C3C9D4 #4E535E
postButtonTintColor #5B6472 #A8AFBC
progressGreen #2FBF5B #3DD56C
receptPositionBackgroundColor #F4F5F7 #26272C
replaceIconColor #7A5CF0 #9780FF
segmentedControlSelectedInactiveTabColor #B9C0CC #555A66
selectedServiceTypeIcon #3B7DFF #6B9DFF
semiTransWhite #FFFFFF99 #FFFFFF4D
separatorColor #3C3C434A #54545899
separatorColorClearInLightMode #3C3C4300 #545458A6
supersetDarkColor #5B3FD0 #8C73FF
supersetNormalColor #7A5CF0 #A390FF
tableHeaderColor #F4F5F7 #1B1C20
textGray2Color #AEB4C0 #636975
textPrimary #1C1C1E #FFFFFF #000000 #FFFFFF
textSecondary #6A7180 #A3A9B6 #454B58 #D0D4DC
tooltipBackgroundColor #2B2F3BF2 #3A3E4AF2
unselectedPageColor #D3D8E1 #4A4F5A
unselectedServiceRadioButton #C3C9D4 #5A606C
unselectedServiceTypeIcon #8E95A3 #7D8491
warningTextColor #D9480F #FF9A66 #9C2F00 #FFC9AD
"""

DARK = {"appearance": "luminosity", "value": "dark"}
CONTRAST = {"appearance": "contrast", "value": "high"}
APPEARANCES = ([], [DARK], [CONTRAST], [DARK, CONTRAST])
SPACES = {"p3": "display-p3", "wide": "extended-srgb"}


def _component(byte, notation):
    if notation == "byte":
        return str(byte)
    return f"0x{byte:02X}" if notation == "hex" else f"{byte / 255:.3f}"


def _value(text, notation):
    if text.startswith("="):
        return {"color-space": "gray-gamma-22",
                "components": {"white": f"{float(text[1:]):.3f}", "alpha": "1.000"}}
    # FF is the alpha of a text without one.
    red, green, blue, alpha = (int((text + "FF")[i:i + 2], 16) for i in (1, 3, 5, 7))
    components = {name: _component(byte, notation)
                  for name, byte in (("red", red), ("green", green), ("blue", blue))}
    components["alpha"] = f"{alpha / 255:.3f}"
    return {"color-space": SPACES.get(notation, "srgb"), "components": components}


def colours():
    """Yields (name, folder, entries of its Contents.json)."""
    folder, default = "", "decimal"
    for line in TABLE.strip().split("\n"):
        if line.startswith("["):
            folder, default = line.strip("[]").split()
            continue
        name, *values = line.split()
        notation = values.pop()[1:] if values[-1].startswith("@") else default
        entries = []
        for value, appearances in zip(values, APPEARANCES):
            entry = {"color": _value(value, notation), "idiom": "universal"}
            if appearances:
                entry["appearances"] = appearances
            entries.append(entry)
        yield name, folder, entries
