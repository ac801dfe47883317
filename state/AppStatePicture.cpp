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

/// A picture and its first colours; a refusal when it cannot be read.
struct AppState::PictureRead {
    std::shared_ptr<const Picture> picture;
    std::vector<Extracted> found;
    std::optional<PictureError> error;
};

namespace {

constexpr int kFirstCount = 6;

/// The samples that are kept of a picture go with its last holder, on whatever path that is.
std::shared_ptr<const Picture> forgettable(std::shared_ptr<const Picture> picture) {
    const auto* const seen = picture.get();
    return {seen,
            [held = std::move(picture)](const Picture* closed) { ImagePalette::forget(*closed); }};
}

bool looksTheSame(const Extracted& a, const Extracted& b) {
    return a == b && a.share == b.share && a.swatchID == b.swatchID && a.isOwn == b.isOwn;
}

} // namespace

bool AppState::ImageSource::operator==(const ImageSource& other) const {
    return picture == other.picture && name == other.name && url == other.url &&
           count == other.count && emphasis == other.emphasis && extracting == other.extracting &&
           most == other.most && std::ranges::equal(found, other.found, looksTheSame);
}

// Opening

void AppState::chooseImage() {
    context_.services.dialogues.askWhatToOpen(
        {OpenQuestion::Of::picture, {}, place()},
        whileAlive(alive_, [this](const std::optional<std::filesystem::path>& file) {
            if (file) loadImage(*file);
        }));
}

void AppState::loadImage(const std::filesystem::path& file) {
    load([file] { return openPicture(file); }, file.filename().string(), file);
}

void AppState::loadImage(Bytes content, std::string name) {
    load([content = std::move(content)] { return openPicture(ByteView(content)); }, std::move(name),
         {});
}

AppState::PictureRead AppState::readPicture(const OpenedPicture& opened,
                                            ImagePalette::Emphasis emphasis) {
    if (const auto* const error = std::get_if<PictureError>(&opened)) return {{}, {}, *error};
    auto picture = forgettable(std::get<std::shared_ptr<const Picture>>(opened));
    auto colours = ImagePalette::extract(*picture, kFirstCount, emphasis);
    if (const auto* const error = std::get_if<PictureError>(&colours)) return {{}, {}, *error};
    return {std::move(picture), std::get<std::vector<Extracted>>(std::move(colours)), {}};
}

void AppState::load(std::function<OpenedPicture()> picture, std::string name,
                    std::filesystem::path url) {
    const auto turn = ++pictureTurn_;
    inBackground(
        context_.services, alive_,
        [picture = std::move(picture), emphasis = imageSource.value().emphasis] {
            return readPicture(picture(), emphasis);
        },
        [this, turn, name = std::move(name), url = std::move(url)](PictureRead&& read) {
            if (turn == pictureTurn_) show(std::move(read), name, url);
        });
}

void AppState::show(PictureRead read, const std::string& name, const std::filesystem::path& url) {
    if (read.error || read.found.empty()) {
        toast(read.error ? SaveTexts::noImageText(name, *read.error)
                         : SaveTexts::nothingToExtractText(name),
              kBriefly);
        return;
    }
    ++pinTurn_;
    const UpdateGroup group;
    ImageSource source;
    source.picture = std::move(read.picture);
    source.name = name;
    source.url = url;
    source.emphasis = imageSource.value().emphasis;
    take(std::move(read.found), kFirstCount, source);
    imageSource = std::move(source);
    if (isPictureWindowOpen.value()) return;
    const auto& views = context_.preferences.paletteViews.value();
    const auto view = views.find(displayKey());
    viewBeforePicture = view == views.end() ? PaletteDisplay::columns : view->second;
    isPictureWindowOpen = true;
    if (const auto& open = context_.preferences.windows.openPictureWindow) open(id_);
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
    inBackground(
        context_.services, alive_,
        [picture = source.picture, inUse = source.inUse, count = source.count, emphasis] {
            const std::scoped_lock lock(*inUse);
            return ImagePalette::extract(*picture, count, emphasis);
        },
        [this, turn = ++pictureTurn_, before](ImagePalette::Colours&& colours) {
            if (turn == pictureTurn_) extracted(std::move(colours), before);
        });
}

void AppState::extracted(ImagePalette::Colours colours, const ImageSource& before) {
    auto source = imageSource.value();
    source.extracting = false;
    if (const auto* const error = std::get_if<PictureError>(&colours)) {
        source.count = before.count;
        source.emphasis = before.emphasis;
        toast(SaveTexts::noImageText(source.name, *error), kBriefly);
    } else {
        ++pinTurn_;
        const auto asked = source.count;
        take(std::get<std::vector<Extracted>>(std::move(colours)), asked, source);
    }
    imageSource = std::move(source);
}

void AppState::take(std::vector<Extracted> found, int asked, ImageSource& into) {
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
        askAboutExisting();
}

void AppState::askAboutExisting() {
    Question question{SaveTexts::addColoursTitle(imageSource.value().found.size()),
                      SaveTexts::addColoursText(swatches().size()),
                      {std::string(SaveTexts::kAddToPalette), std::string(SaveTexts::kReplace),
                       std::string(SaveTexts::kCancel)},
                      place()};
    context_.services.dialogues.ask(std::move(question),
                                    whileAlive(alive_, [this](std::size_t button) {
                                        if (button == 0) applyExtraction(Arriving::add);
                                        if (button == 1) applyExtraction(Arriving::replace);
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
    linkFoundToSwatches();
}

void AppState::linkFoundToSwatches() {
    std::map<std::string, Uuid> byIdentity;
    for (const auto& swatch : swatches())
        byIdentity.emplace(swatch.color.identity(), swatch.id);
    auto source = imageSource.value();
    for (auto& colour : source.found) {
        if (swatchOf(colour)) continue;
        const auto swatch = byIdentity.find(colour.color.identity());
        if (swatch != byIdentity.end()) colour.swatchID = swatch->second.text();
    }
    imageSource = std::move(source);
}

// Pins

std::optional<std::size_t> AppState::swatchOf(const Extracted& pin) const {
    const auto id = pin.swatchID ? Uuid::fromText(*pin.swatchID) : std::nullopt;
    return id ? indexOf(*id) : std::nullopt;
}

std::vector<Uuid> AppState::pinSwatchIDs() const {
    std::vector<Uuid> ids;
    for (const auto& pin : imageSource.value().found)
        if (const auto at = swatchOf(pin)) ids.push_back(swatches()[*at].id);
    return ids;
}

void AppState::readPixel(ImagePalette::Point at,
                         std::function<void(std::optional<WashColor>)> then) {
    const auto& source = imageSource.value();
    inBackground(
        context_.services, alive_,
        [picture = source.picture, inUse = source.inUse, at] {
            const std::scoped_lock lock(*inUse);
            return ImagePalette::colour(*picture, at);
        },
        std::move(then));
}

void AppState::addPin(ImagePalette::Point at) {
    const auto picture = imageSource.value().picture;
    if (!picture) return;
    readPixel(at, [this, at, picture](const std::optional<WashColor>& colour) {
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
    if (!readingPin_) readNextMove();
}

void AppState::readNextMove() {
    const auto move = *std::exchange(nextMove_, std::nullopt);
    readingPin_ = true;
    readPixel(move.to, [this, move, turn = pinTurn_](const std::optional<WashColor>& colour) {
        readingPin_ = false;
        if (turn != pinTurn_) nextMove_.reset();
        if (turn == pinTurn_ && colour) pinMoved(move, *colour);
        // Of the places that a drag passed meanwhile only the last one counts.
        if (nextMove_) readNextMove();
    });
}

void AppState::pinMoved(const PinMove& move, const WashColor& colour) {
    auto source = imageSource.value();
    if (move.pin >= source.found.size()) return;
    auto& pin = source.found[move.pin];
    pin.point = move.to;
    pin.color = colour;
    pin.isOwn = true;
    const UpdateGroup group;
    if (const auto at = swatchOf(pin)) replaceInPalette(*at, colour, "pin");
    imageSource = std::move(source);
}

void AppState::removePin(std::size_t pin) {
    auto source = imageSource.value();
    if (pin >= source.found.size()) return;
    ++pinTurn_;
    const UpdateGroup group;
    if (const auto at = swatchOf(source.found[pin])) removeSwatch(*at);
    source.found.erase(source.found.begin() + static_cast<std::ptrdiff_t>(pin));
    imageSource = std::move(source);
}

} // namespace tintra
