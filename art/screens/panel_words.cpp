// The first names of rescued animals and the word between name and kind.
#include "art/screens/kit.h"
#include "art/screens/panel_parts.h"
#include "art/screens/panel_words.h"

static const float NAME_SIZE = 12.5f;
static const int LINE_HEIGHT = 15; // the lines stand 11 apart and overlap

// clang-format off
static const char* const NAMES[] = {
	"Fluffy", "Biscuit", "Pickles", "Waffles", "Noodle", "Pepper", "Ginger", "Muffin", "Pumpkin", "Cookie",
	"Daisy", "Poppy", "Clover", "Rosie", "Hazel", "Olive", "Maple", "Willow", "Juniper", "Basil",
	"Otis", "Milo", "Felix", "Hugo", "Oscar", "Archie", "Alfie", "Barney", "Chester", "Dexter",
	"Ernie", "Fergus", "Gus", "Harvey", "Iggy", "Jasper", "Kipper", "Louie", "Monty", "Nigel",
	"Percy", "Quentin", "Rufus", "Sidney", "Toby", "Ulysses", "Vinnie", "Wilbur", "Ziggy", "Boris",
	"Agnes", "Bella", "Coco", "Dolly", "Edith", "Flora", "Greta", "Hattie", "Ingrid", "Josie",
	"Kiki", "Lottie", "Mabel", "Nellie", "Ophelia", "Penny", "Queenie", "Ruby", "Sally", "Tilly",
	"Ursula", "Violet", "Winnie", "Yvonne", "Zelda", "Bubbles", "Snuggles", "Tickles", "Giggles", "Doodle",
	"Sprout", "Pebble", "Acorn", "Button", "Bumble", "Cricket", "Domino", "Dumpling", "Echo", "Freckles",
	"Gizmo", "Gumdrop", "Honey", "Jellybean", "Kiwi", "Lemon", "Mango", "Marble", "Mocha", "Nacho",
	"Nutmeg", "Oregano", "Patches", "Peanut", "Pesto", "Pixel", "Popcorn", "Puddle", "Radish", "Rocket",
	"Scooter", "Skipper", "Smudge", "Socks", "Sparky", "Speckle", "Squeaky", "Sunny", "Taco", "Teddy",
	"Toffee", "Truffle", "Tulip", "Turnip", "Twiggy", "Whiskers", "Wiggles", "Yoyo", "Zippy", "Bramble",
	"Captain", "Duchess", "Major", "Princess", "Sir Hops", "Lady Lou", "Big Ben", "Tiny Tim", "Mister B", "Miss Moon",
	"Amadeus", "Bruno", "Cosmo", "Disco", "Elvira", "Figaro", "Gatsby", "Hector", "Isolde", "Jojo",
};
// clang-format on

static Image Word(const std::string& text, Colour face)
{
	return EdgedWord(text, NAME_SIZE, face, HexColour(0x0a2036), LINE_HEIGHT, 1.1f);
}

Image PanelName(const std::string& text)
{
	return Word(text, HexColour(0xffe98a));
}
Image PanelWord(const std::string& text)
{
	return Word(text, PAINT_WHITE);
}

void AddPanelWords(Catalogue& catalogue)
{
	catalogue.Add("panel/names", __FILE__, [](Sink& sink) {
		int number = 0;
		for (const char* name : NAMES)
			sink.Add("sidebarname" + std::to_string(number++) + ".png", PanelName(name));
		sink.Add("sidebarnamethe.png", PanelWord("the"));
	});
}
