#include "platform/Dialogues.h"
#include "state/AppState.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"
#include "state/UpdateGroup.h"

#include <algorithm>
#include <utility>

namespace tintra {

using ImagePalette::Extracted;

struct AppState::Extracting {
    /// A picture and its first colours; a refusal when it cannot be read.
    struct PictureRead {
        std::shared_ptr<const Picture> picture;
        std::vector<Extracted> found;
        std::optional<PictureError> error;
    };
    static PictureRead readPicture(const OpenedPicture& opened, ImagePalette::Emphasis emphasis);
    static void openWith(AppState& state, std::function<OpenedPicture()> picture, std::string name,
                         std::filesystem::path url);
    static void present(AppState& state, PictureRead read, const std::string& name,
                        const std::filesystem::path& url);
    static void extracted(AppState& state, ImagePalette::Colours colours,
                          const ImageSource& before);
    /// What was found, then the user's own pins.
    static void take(std::vector<Extracted> found, int asked, ImageSource& into);
    static void askAboutExisting(AppState& state);
    static void linkFoundToSwatches(AppState& state);
    /// The colour there, in the background.
    static void readPixel(AppState& state, ImagePalette::Point at,
                          std::function<void(std::optional<WashColor>)> then);
    static void readNextMove(AppState& state);
    static void pinMoved(AppState& state, const PinMove& move, const WashColor& colour);
    static std::optional<std::size_t> swatchOf(const AppState& state, const Extracted& pin);
};

namespace {

constexpr int kFirstCount = 6;

/// The samples that are kept of a picture go with its last holder, on whatever path that is.
std::shared_ptr<const Picture> forgettable(std::shared_ptr<const Picture> picture) {
    const auto* const seen = picture.get();
    return {seen,
            [held = std::move(picture)](const Picture* closed) { ImagePalette::forget(*closed); }};
}

} // namespace

// Opening

void AppState::chooseImage() {
    context_.services.dialogues.askWhatToOpen(
        {OpenQuestion::Of::picture, {}, place()},
        whileAlive(alive_, [this](const std::optional<std::filesystem::path>& file) {
            if (file) loadImage(*file);
        }));
}

void AppState::loadImage(const std::filesystem::path& file) {
    Extracting::openWith(
        *this, [file] { return openPicture(file); }, file.filename().string(), file);
}

void AppState::loadImage(Bytes content, std::string name) {
    Extracting::openWith(*this,
                         [content = std::move(content)] { return openPicture(ByteView(content)); },
                         std::move(name), {});
}

AppState::Extracting::PictureRead
AppState::Extracting::readPicture(const OpenedPicture& opened, ImagePalette::Emphasis emphasis) {
    if (const auto* const error = std::get_if<PictureError>(&opened)) return {{}, {}, *error};
    auto picture = forgettable(std::get<std::shared_ptr<const Picture>>(opened));
    auto colours = ImagePalette::extract(*picture, kFirstCount, emphasis);
    if (const auto* const error = std::get_if<PictureError>(&colours)) return {{}, {}, *error};
    return {std::move(picture), std::get<std::vector<Extracted>>(std::move(colours)), {}};
}

void AppState::Extracting::openWith(AppState& state, std::function<OpenedPicture()> picture,
                                    std::string name, std::filesystem::path url) {
    const auto turn = ++state.pictureTurn_;
    inBackground(
        state.context_.services, state.alive_,
        [picture = std::move(picture), emphasis = state.imageSource.value().emphasis] {
            return readPicture(picture(), emphasis);
        },
        [&state, turn, name = std::move(name), url = std::move(url)](PictureRead&& read) {
            if (turn == state.pictureTurn_) present(state, std::move(read), name, url);
        });
}

void AppState::Extracting::present(AppState& state, PictureRead read, const std::string& name,
                                   const std::filesystem::path& url) {
    if (read.error || read.found.empty()) {
        state.toast(read.error ? SaveTexts::noImageText(name, *read.error)
                               : SaveTexts::nothingToExtractText(name),
                    kBriefly);
        return;
    }
    ++state.pinTurn_;
    const UpdateGroup group;
    ImageSource source;
    source.picture = std::move(read.picture);
    source.name = name;
    source.url = url;
    source.emphasis = state.imageSource.value().emphasis;
    take(std::move(read.found), kFirstCount, source);
    state.imageSource = std::move(source);
    if (state.isPictureWindowOpen.value()) return;
    const auto& views = state.context_.preferences.paletteViews.value();
    const auto view = views.find(state.displayKey());
    state.viewBeforePicture = view == views.end() ? PaletteDisplay::columns : view->second;
    state.isPictureWindowOpen = true;
    if (const auto& open = state.context_.preferences.windows.openPictureWindow) open(state.id_);
}

void AppState::closePicture() {
    ++pictureTurn_;
    ++pinTurn_;
    const UpdateGroup group;
    ImageSource none;
    none.emphasis = imageSource.value().emphasis;
    imageSource = std::move(none);
    if (!isPictureWindowOpen.value()) return;
    isPictureWindowOpen = false;
    if (const auto& close = context_.preferences.windows.closePictureWindow) close(id_);
}

std::string AppState::displayKey() const {
    const auto file = currentPaletteURL();
    return file ? file->string() : id_.text();
}

// Extracting anew

bool AppState::canExtractMore() const {
    const auto& source = imageSource.value();
    return source.picture && source.count < source.most;
}

bool AppState::canExtractFewer() const {
    const auto& source = imageSource.value();
    return source.picture && source.count > 1;
}

void AppState::reextract(int count, ImagePalette::Emphasis emphasis) {
    const auto before = imageSource.value();
    if (!before.picture) return;
    auto source = before;
    source.count = std::clamp(count, 1, before.most);
    source.emphasis = emphasis;
    source.extracting = true;
    imageSource = source;
    const auto turn = ++pictureTurn_;
    *source.wanted = turn;
    inBackground(
        context_.services, alive_,
        [picture = source.picture, inUse = source.inUse, count = source.count, emphasis, turn,
         wanted = source.wanted]() -> ImagePalette::Colours {
            const std::scoped_lock lock(*inUse);
            // Of counts that were passed quickly only the last one costs anything.
            if (*wanted != turn) return {};
            return ImagePalette::extract(*picture, count, emphasis);
        },
        [this, turn, before](ImagePalette::Colours&& colours) {
            if (turn == pictureTurn_) Extracting::extracted(*this, std::move(colours), before);
        });
}

void AppState::Extracting::extracted(AppState& state, ImagePalette::Colours colours,
                                     const ImageSource& before) {
    auto source = state.imageSource.value();
    source.extracting = false;
    if (const auto* const error = std::get_if<PictureError>(&colours)) {
        source.count = before.count;
        source.emphasis = before.emphasis;
        state.toast(SaveTexts::noImageText(source.name, *error), kBriefly);
    } else {
        ++state.pinTurn_;
        const auto asked = source.count;
        take(std::get<std::vector<Extracted>>(std::move(colours)), asked, source);
    }
    state.imageSource = std::move(source);
}

void AppState::Extracting::take(std::vector<Extracted> found, int asked, ImageSource& into) {
    into.count = static_cast<int>(found.size());
    // All that there is was found when there was less than asked for.
    if (into.count < asked) into.most = into.count;
    for (auto& colour : found) {
        const auto same = std::ranges::find(into.found, colour);
        if (same != into.found.end()) colour.swatchID = same->swatchID;
    }
    std::ranges::copy_if(into.found, std::back_inserter(found), &Extracted::isOwn);
    into.found = std::move(found);
}

// Into the palette

void AppState::applyExtraction() {
    const auto& source = imageSource.value();
    if (!source.picture) return;
    if (source.found.empty())
        toast(SaveTexts::nothingToExtractText(source.name), kBriefly);
    else if (swatches().empty())
        applyExtraction(Arriving::add);
    else
        Extracting::askAboutExisting(*this);
}

void AppState::Extracting::askAboutExisting(AppState& state) {
    Question question{SaveTexts::addColoursTitle(state.imageSource.value().found.size()),
                      SaveTexts::addColoursText(state.swatches().size()),
                      {std::string(SaveTexts::kAddToPalette), std::string(SaveTexts::kReplace),
                       std::string(SaveTexts::kCancel)},
                      state.place()};
    state.context_.services.dialogues.ask(std::move(question),
                                          whileAlive(state.alive_, [&state](std::size_t button) {
                                              if (button == 0) state.applyExtraction(Arriving::add);
                                              if (button == 1)
                                                  state.applyExtraction(Arriving::replace);
                                          }));
}

void AppState::applyExtraction(Arriving arriving) {
    const auto& found = imageSource.value().found;
    if (found.empty()) return;
    std::vector<WashColor> colours;
    colours.reserve(found.size());
    for (const auto& one : found)
        colours.push_back(one.color);
    const UpdateGroup group;
    if (arriving == Arriving::add)
        addAllToPalette(colours);
    else
        replacePalette(colours, {});
    Extracting::linkFoundToSwatches(*this);
}

void AppState::Extracting::linkFoundToSwatches(AppState& state) {
    std::map<std::string, Uuid> byIdentity;
    for (const auto& swatch : state.swatches())
        byIdentity.emplace(swatch.color.identity(), swatch.id);
    auto source = state.imageSource.value();
    for (auto& colour : source.found) {
        if (swatchOf(state, colour)) continue;
        const auto swatch = byIdentity.find(colour.color.identity());
        if (swatch != byIdentity.end()) colour.swatchID = swatch->second.text();
    }
    state.imageSource = std::move(source);
}

// Pins

std::optional<std::size_t> AppState::Extracting::swatchOf(const AppState& state,
                                                          const Extracted& pin) {
    const auto id = pin.swatchID ? Uuid::fromText(*pin.swatchID) : std::nullopt;
    return id ? state.indexOf(*id) : std::nullopt;
}

std::vector<Uuid> AppState::pinSwatchIDs() const {
    std::vector<Uuid> ids;
    for (const auto& pin : imageSource.value().found)
        if (const auto at = Extracting::swatchOf(*this, pin)) ids.push_back(swatches()[*at].id);
    return ids;
}

void AppState::Extracting::readPixel(AppState& state, ImagePalette::Point at,
                                     std::function<void(std::optional<WashColor>)> then) {
    const auto& source = state.imageSource.value();
    inBackground(
        state.context_.services, state.alive_,
        [picture = source.picture, inUse = source.inUse, at] {
            const std::scoped_lock lock(*inUse);
            return ImagePalette::colour(*picture, at);
        },
        std::move(then));
}

void AppState::addPin(ImagePalette::Point at) {
    const auto picture = imageSource.value().picture;
    if (!picture) return;
    Extracting::readPixel(*this, at, [this, at, picture](const std::optional<WashColor>& colour) {
        // A colour that the palette refuses gets no pin; the refusal has been shown.
        if (!colour || imageSource.value().picture != picture) return;
        const UpdateGroup group;
        if (!addToPalette(*colour, Duplicates::refuse)) return;
        auto source = imageSource.value();
        source.found.push_back({*colour, 0, at, swatches().back().id.text(), true});
        imageSource = std::move(source);
    });
}

void AppState::movePin(std::size_t pin, ImagePalette::Point to) {
    if (pin >= imageSource.value().found.size()) return;
    nextMove_ = PinMove{pin, to};
    if (!readingPin_) Extracting::readNextMove(*this);
}

void AppState::Extracting::readNextMove(AppState& state) {
    const auto move = *std::exchange(state.nextMove_, std::nullopt);
    state.readingPin_ = true;
    readPixel(state, move.to,
              [&state, move, turn = state.pinTurn_](const std::optional<WashColor>& colour) {
                  state.readingPin_ = false;
                  if (turn != state.pinTurn_) state.nextMove_.reset();
                  if (turn == state.pinTurn_ && colour) pinMoved(state, move, *colour);
                  // Of the places that a drag passed meanwhile only the last one counts.
                  if (state.nextMove_) readNextMove(state);
              });
}

void AppState::Extracting::pinMoved(AppState& state, const PinMove& move, const WashColor& colour) {
    auto source = state.imageSource.value();
    if (move.pin >= source.found.size()) return;
    auto& pin = source.found[move.pin];
    pin.point = move.to;
    pin.color = colour;
    pin.isOwn = true;
    const UpdateGroup group;
    if (const auto at = swatchOf(state, pin)) state.replaceInPalette(*at, colour, "pin");
    state.imageSource = std::move(source);
}

void AppState::removePin(std::size_t pin) {
    auto source = imageSource.value();
    if (pin >= source.found.size()) return;
    ++pinTurn_;
    const UpdateGroup group;
    if (const auto at = Extracting::swatchOf(*this, source.found[pin])) removeSwatch(*at);
    source.found.erase(source.found.begin() + static_cast<std::ptrdiff_t>(pin));
    imageSource = std::move(source);
}

} // namespace tintra
