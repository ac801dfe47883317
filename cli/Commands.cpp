#include "cli/Commands.h"

namespace tintra::cli {

namespace {

const std::vector<Command>& table() {
    static const std::vector<Command> commands{
        {"show",
         "Everything known of each colour",
         "Prints every colour's hex code, nearest name, RGB, HSB, HSL, CMYK, Lab, OKLab and OKLCH "
         "values, its luminance, and whether black or white reads better on it.",
         {{"tintra show '#ff8000'", "one colour"},
          {"tintra show rebeccapurple 'rgb(20 40 60 / 50%)' --json", "two colours for a program"}},
         declareShow},
        {"name",
         "Nearest name of each colour",
         "Prints the nearest name out of some 31,000 named colours, a line for each colour.",
         {{"tintra name '#1e4d6b'", "one name"},
          {"cut -f1 colours.tsv | tintra name -", "a colour a line from another program"}},
         declareName},
        {"code",
         "Colours as code",
         "Prints each colour as a line of code. “tintra formats” lists the identifiers of the "
         "formats. Without --format the colour is written as a CSS hex code.",
         {{"tintra code '#f80' --format swiftUIColor --format composeColor", "two languages"},
          {"tintra code 'oklch(0.7 0.15 50)' --all", "every format"}},
         declareCode},
        {"contrast",
         "How a text reads on a ground",
         "Measures text on ground: WCAG 2.2 ratio, grade and verdict, and APCA lightness contrast. "
         "With --reach it proposes the nearest lightness of the text or of the ground that reaches "
         "a level. With --matrix it measures every pair of up to ten colours.",
         {{"tintra contrast '#777' white", "one pair"},
          {"tintra contrast '#777' white --reach aa", "and how to mend it"},
          {"tintra contrast --matrix navy teal white", "every pair"}},
         declareContrast},
        {"harmony",
         "Harmonies and ramps from one or two colours",
         "Prints the bands of a harmony: a ramp between two colours, a monochromatic scale, or the "
         "hues of a classic harmony, with --shades as ramps from each hue to LAST.",
         {{"tintra harmony triadic '#1e4d6b'", "three hues"},
          {"tintra harmony ramp '#fff' '#1e4d6b' --count 9 --space okLab", "nine even steps"}},
         declareHarmony},
        {"mix",
         "Two colours mixed as paints",
         "Mixes two colours as pigments mix, not as lights: blue and yellow make green. White and "
         "black paint can be added; with --steps a ramp of mixes is printed.",
         {{"tintra mix blue yellow", "half and half"},
          {"tintra mix '#1e4d6b' '#e29578' --steps 7 --white 0.1", "a ramp, lightened"}},
         declareMix},
        {"vision",
         "Colours as people with a colour-vision deficiency see them",
         "Prints the colour that an observer with protanopia, deuteranopia, tritanopia or "
         "achromatopsia sees for each colour. With --picture a whole picture is shown that way and "
         "written as PNG.",
         {{"tintra vision deuteranopia red green", "two colours that become alike"},
          {"tintra vision protanopia --picture chart.png -o seen.png", "a picture"}},
         declareVision},
        {"read",
         "The swatches of palette files",
         "Reads Adobe swatch exchange, Photoshop swatches, GIMP palettes, colour lists and "
         "stylesheets, and prints their swatches. “-” reads standard input as pasted text. Entries "
         "that cannot be read are counted on standard error.",
         {{"tintra read brand.ase theme.scss", "two palettes"},
          {"xclip -o | tintra read - --json", "what lies on the clipboard"}},
         declareRead},
        {"convert",
         "Write palettes in another format",
         "Writes palettes as one of thirteen formats. With -o the format follows the extension of "
         "OUT, and several inputs make one palette. With --to every input is written to a file of "
         "its own name with the format's extension.",
         {{"tintra convert brand.ase -o brand.scss", "one file"},
          {"tintra convert *.aco --to gpl --out-dir palettes", "many files"},
          {"tintra convert brand.clr -o - --to css", "to standard output"}},
         declareConvert},
        {"extract",
         "The colours of pictures",
         "Finds the representative colours of each picture: PNG, JPEG, WebP, TIFF, GIF, BMP, SVG, "
         "AVIF or HEIC. Each line is a colour, the share of the picture it stands for and its "
         "nearest name. With -o the colours of all pictures are written as one palette.",
         {{"tintra extract photo.jpg", "eight colours"},
          {"tintra extract *.png --count 5 --emphasis vibrant", "five strong colours of each"},
          {"tintra extract poster.svg -o poster.ase", "a palette file"}},
         declareExtract},
        {"library",
         "The palettes in folders",
         "Lists the palette files directly in each folder: their number of colours, name and path. "
         "--find takes a palette's name, a swatch's name or a colour and lists only the palettes "
         "that have it; put a name that is a colour too in double quotes. Folders are read, never "
         "changed.",
         {{"tintra library ~/palettes", "every palette"},
          {"tintra library ~/palettes --find '#1e4d6b' --match exact", "which hold this colour"},
          {"tintra library . ~/palettes --find harbour --sort date --descending",
           "by name, the newest first"},
          {"tintra library ~/palettes --find '\"coral\"'", "by a name that is a colour too"}},
         declareLibrary},
        {"formats",
         "The formats that can be chosen",
         "Lists the formats of code (for “tintra code”) and of palette files (for “tintra "
         "convert”).",
         {{"tintra formats", "both lists"}},
         declareFormats},
        {"profiles",
         "The colour profiles that can be chosen",
         "Lists the RGB spaces and the CMYK profiles found on this machine, and which are selected "
         "by --rgb-profile, --cmyk-profile and --illuminant.",
         {{"tintra profiles", "the lists"}},
         declareProfiles},
    };
    return commands;
}

} // namespace

std::span<const Command> commands() {
    return table();
}

void declareGlobals(Declaration& declaration, GlobalOptions& options) {
    declaration.flag("--json", options.json, "Print one JSON document");
    declaration.choice("--colour,--color", options.colour, {"auto", "always", "never"}, "WHEN",
                       "When to show swatch blocks; auto is on a terminal, unless NO_COLOR is set");
    declaration.option("--rgb-profile", options.rgbProfile, "NAME",
                       "RGB space of hex and 0-255 values (default sRGB IEC61966-2.1)");
    declaration.option("--cmyk-profile", options.cmykProfile, "NAME",
                       "CMYK profile of CMYK values (default Device CMYK)");
    declaration.choice("--illuminant", options.illuminant, {"d50", "d65"}, "WHITE",
                       "White of Lab values (default d50)");
    declaration.flag("-q,--quiet", options.quiet, "No progress, no notices");
}

} // namespace tintra::cli
