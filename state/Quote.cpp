#include "state/Quote.h"

#include <array>

namespace tintra {
namespace {

constexpr std::array kQuotes{
    Quote{"Colours are the deeds and sufferings of light.", "Johann Wolfgang von Goethe"},
    Quote{"The purest and most thoughtful minds are those which love colour the most.",
          "John Ruskin"},
    Quote{"Colour is the keyboard, the eyes are the hammers, the soul is the piano with many "
          "strings.",
          "Wassily Kandinsky"},
    Quote{"Mere colour, unspoiled by meaning, and unallied with definite form, can speak to the "
          "soul in a thousand different ways.",
          "Oscar Wilde"},
    Quote{"I found I could say things with colour and shapes that I couldn't say any other way.",
          "Georgia O’Keeffe"},
    Quote{"Colours are the smiles of nature.", "Leigh Hunt"},
    Quote{"In visual perception a colour is almost never seen as it really is.", "Josef Albers"},
};

} // namespace

std::span<const Quote> Quote::all() {
    return kQuotes;
}

} // namespace tintra
