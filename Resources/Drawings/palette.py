"""Colours of the drawings: the common palette and those of each region."""

COLOURS = {
    "ink": "#1C1C1E", "white": "#FFFFFF", "paper": "#F4F5F7", "mist": "#E4E7EC",
    "fog": "#CBD0D9", "grey": "#9AA1AD", "slate": "#5B6472", "night": "#23283A",
    "blue": "#3B7DFF", "sky": "#CFE2FF", "deep": "#1F4FB8", "teal": "#19B5A5",
    "mint": "#CBF3E6", "green": "#34B56A", "leaf": "#2E8B4E", "lime": "#A5D64C",
    "yellow": "#FFC93C", "cream": "#FFF1CC", "orange": "#FF8A3D", "peach": "#FFDCC2",
    "red": "#F0483E", "rose": "#FFD3D6", "pink": "#F2639A", "violet": "#7A5CF0",
    "lilac": "#E2DAFF", "brown": "#8A5A3B", "tan": "#D9A066", "bread": "#E8B878",
    "wine": "#9C2F4F", "gold": "#F5B301",
}

# People and places of each region; "ru" is only for the pictures that have a variant for Russia, "plain" for pictures without a region.
# People: skin (and its shade), hair; top, bottom and shoe are clothes, accent is a stripe, scarf or hair band. Places: the sky from top
# to bottom; far and near are layers of the landscape.
REGION_COLOURS = {
    "plain": dict(skin="#F2C6A0", shade="#DFAA80", hair="#5A3A28", top="#3B7DFF", bottom="#23283A",
                  shoe="#FFFFFF", accent="#7A5CF0", sky=("#EEF3FF", "#D6E4FF"), far="#BDD1FA",
                  near="#9DB9F2", ground="#7FA0E6", sun="#FFFFFF"),
    "arab": dict(skin="#D9A273", shade="#C18757", hair="#231815", top="#0F8B7E", bottom="#F3EBDD",
                 shoe="#8A5A3B", accent="#0F8B7E", sky=("#FFF4DC", "#FBD9A0"), far="#EFC07A",
                 near="#DDA35A", ground="#C78A45", sun="#FFFFFF"),
    "asia": dict(skin="#F6D2AE", shade="#E3B68C", hair="#15151B", top="#E0403A", bottom="#2B2F45",
                 shoe="#FFFFFF", accent="#E0403A", sky=("#FFF0F2", "#FFCBD3"), far="#F5A9B5",
                 near="#D9798C", ground="#B85870", sun="#FF5A52"),
    "europe": dict(skin="#FADBC6", shade="#EDBDA0", hair="#D9A441", top="#2C9C5A", bottom="#34495E",
                   shoe="#F4F5F7", accent="#2C9C5A", sky=("#EAF7FF", "#BFE3F7"), far="#9CC4DC",
                   near="#6FA58A", ground="#4F8C6B", sun="#FFE27A"),
    "latina": dict(skin="#C68A5E", shade="#AB7046", hair="#3A2218", top="#FF7A1A", bottom="#5B2A86",
                   shoe="#FFFFFF", accent="#FF7A1A", sky=("#FFE9A8", "#FF9E6B"), far="#F0705A",
                   near="#C2476A", ground="#7A2F6B", sun="#FFD23C"),
    "usa": dict(skin="#8D5B3E", shade="#744730", hair="#1D1412", top="#F4F5F7", bottom="#2747A8",
                shoe="#F0483E", accent="#2747A8", sky=("#E5E4FF", "#B3B8F5"), far="#8D93E0",
                near="#5F66C4", ground="#3C4299", sun="#FFF3C4"),
    "ru": dict(skin="#FBE0CF", shade="#EFC3A8", hair="#B9793A", top="#3B7DFF", bottom="#2B3550",
               shoe="#FFFFFF", accent="#3B7DFF", sky=("#F2F8FF", "#CFE4FA"), far="#A9CBE8",
               near="#7FA9CF", ground="#E9F2FA", sun="#FFFFFF"),
}


def darker(colour, share=0.82):
    """A colour (#RRGGBB or a key of the palette) with `share` of its brightness."""
    text = COLOURS.get(colour, colour)
    return "#" + "".join(f"{int(int(text[i:i + 2], 16) * share):02X}" for i in (1, 3, 5))
