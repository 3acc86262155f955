#pragma once
// Names that the demonstration people are made of.

namespace demo {

inline constexpr const char* NomsFamille[] = {
    "Adam",       "Allard",      "André",     "Arnaud",    "Aubert",     "Aubry",     "Auger",
    "Bailly",     "Barbier",     "Baron",     "Barré",     "Barthélémy", "Baudry",    "Bazin",
    "Beaumont",   "Bécu",        "Bellanger", "Benard",    "Benoît",     "Berger",    "Bernard",
    "Berthelot",  "Bertin",      "Bertrand",  "Besnard",   "Besson",     "Bideau",    "Bigot",
    "Blanc",      "Blanchard",   "Blin",      "Blondel",   "Bodin",      "Boëdec",    "Boisseau",
    "Bonhomme",   "Bonnet",      "Boucher",   "Boulanger", "Bourdin",    "Bourgeois", "Boutin",
    "Bouvet",     "Bouvier",     "Boyer",     "Breton",    "Briand",     "Brun",      "Brunet",
    "Cadiou",     "Camus",       "Carlier",   "Caron",     "Carpentier", "Carré",     "Cartier",
    "Chantereau", "Charpentier", "Charrier",  "Chartier",  "Chauveau",   "Chauvin",   "Chevalier",
    "Chevallier", "Clément",     "Cochet",    "Colin",     "Collet",     "Collin",    "Cordier",
    "Cornu",      "Cosson",      "Coulon",    "Courtois",  "Cousin",     "Coutant",   "Crépin",
    "Cuvelier",   "Da Silva",    "Daniel",    "David",     "Delaunay",   "Delmas",    "Delorme",
    "Denis",      "Descamps",    "Deschamps", "Devaux",    "Diallo",     "Didier",    "Diot",
    "Doucet",     "Drouet",      "Dubois",    "Dufour",    "Duhamel",    "Dumas",     "Dumont",
    "Dupont",     "Dupré",       "Dupuis",    "Durand",    "Duval",      "Étienne",   "Evrard",
    "Fabre",      "Faure",       "Fernandez", "Ferrand",   "Fleury",     "Fontaine",  "Forestier",
    "Fouquet",    "Fournier",    "François",  "Gaillard",  "Garcia",     "Garnier",   "Gaudin",
    "Gautier",    "Gay",         "Gérard",    "Germain",   "Gilbert",    "Girard",    "Giraud",
    "Godard",     "Gonçalves",   "Goujon",    "Grandjean", "Gros",       "Guérin",    "Guéguen",
    "Guichard",   "Guillaume",   "Guillet",   "Guillot",   "Guyot",      "Hamon",     "Hardy",
    "Hébert",     "Henry",       "Hervé",     "Hoarau",    "Houdayer",   "Hubert",    "Huet",
    "Humbert",    "Imbert",      "Jacob",     "Jacquet",   "Jamet",      "Jégou",     "Joly",
    "Joubert",    "Jourdan",     "Julien",    "Kervella",  "Klein",      "Labbé",     "Lacroix",
    "Lambert",    "Lamy",        "Langlois",  "Laporte",   "Laurent",    "Lebon",     "Le Bihan",
    "Leblanc",    "Lebrun",      "Leclerc",   "Lecomte",   "Lefebvre",   "Lefèvre",   "Legendre",
    "Le Gall",    "Léger",       "Le Goff",   "Legrand",   "Lejeune",    "Lemaire",   "Lemaître",
    "Lemoine",    "Leroux",      "Leroy",     "Lesage",    "L'Hostis",   "Lopez",     "Loiseau",
    "Louis",      "Lucas",       "Maillard",  "Mallet",    "Marchand",   "Maréchal",  "Marie",
    "Marion",     "Marquet",     "Martel",    "Martin",    "Martinez",   "Marty",     "Masson",
    "Mathieu",    "Maurice",     "Ménard",    "Mercier",   "Meunier",    "Meyer",     "Michaud",
    "Michel",     "Millet",      "Monnier",   "Moreau",    "Morel",      "Morin",     "Moulin",
    "Muller",     "N'Diaye",     "Navarro",   "Nicolas",   "Noël",       "Olivier",   "Orhan",
    "Pagès",      "Paris",       "Pasquier",  "Paul",      "Payet",      "Pelletier", "Pereira",
    "Perez",      "Périer",      "Perret",    "Perrin",    "Perrot",     "Petit",     "Philippe",
    "Picard",     "Pichon",      "Pinson",    "Poirier",   "Poulain",    "Prévost",   "Quéré",
    "Raymond",    "Renard",      "Renaud",    "Rey",       "Reynaud",    "Richard",   "Rivière",
    "Robert",     "Robin",       "Roche",     "Rodriguez", "Roger",      "Rolland",   "Rousseau",
    "Roussel",    "Roux",        "Roy",       "Royer",     "Salaün",     "Sanchez",   "Sauvage",
    "Schmitt",    "Séguin",      "Simon",     "Tanguy",    "Tessier",    "Texier",    "Thibault",
    "Thomas",     "Traoré",      "Tréhorel",  "Vallée",    "Vasseur",    "Verdier",   "Vidal",
    "Vincent",    "Voisin",      "Weber"};

inline constexpr const char* PrenomsFemme[] = {
    "Adèle",        "Agnès",        "Alexandra",    "Alice",    "Aline",      "Amandine",
    "Amélie",       "Andréa",       "Angélique",    "Anne",     "Anne-Marie", "Annick",
    "Armelle",      "Aurélie",      "Aurore",       "Béatrice", "Bénédicte",  "Bernadette",
    "Brigitte",     "Camille",      "Carine",       "Carole",   "Caroline",   "Cathy",
    "Cécile",       "Céline",       "Chantal",      "Charlène", "Charlotte",  "Chloé",
    "Christelle",   "Christiane",   "Christine",    "Claire",   "Clara",      "Claudine",
    "Clémence",     "Coralie",      "Corinne",      "Danielle", "Delphine",   "Denise",
    "Dominique",    "Édith",        "Élisabeth",    "Élise",    "Élodie",     "Émilie",
    "Emma",         "Estelle",      "Éva",          "Évelyne",  "Fabienne",   "Fanny",
    "Fatima",       "Florence",     "Françoise",    "Gaëlle",   "Geneviève",  "Ginette",
    "Gwenaëlle",    "Hélène",       "Inès",         "Isabelle", "Jacqueline", "Jeanne",
    "Jennifer",     "Jessica",      "Joëlle",       "Josiane",  "Julie",      "Juliette",
    "Karine",       "Laëtitia",     "Laura",        "Laurence", "Léa",        "Lucie",
    "Lydie",        "Madeleine",    "Magali",       "Manon",    "Marguerite", "Marie",
    "Marie-Claude", "Marie-Hélène", "Marie-Noëlle", "Marine",   "Marion",     "Martine",
    "Mathilde",     "Maud",         "Mélanie",      "Michèle",  "Mireille",   "Monique",
    "Morgane",      "Muriel",       "Myriam",       "Nadège",   "Nadia",      "Nathalie",
    "Nicole",       "Noémie",       "Océane",       "Odile",    "Pascale",    "Patricia",
    "Pauline",      "Raymonde",     "Renée",        "Rozenn",   "Sabrina",    "Samira",
    "Sandra",       "Sandrine",     "Séverine",     "Simone",   "Solène",     "Sonia",
    "Sophie",       "Stéphanie",    "Suzanne",      "Sylvie",   "Thérèse",    "Valérie",
    "Vanessa",      "Véronique",    "Virginie",     "Viviane",  "Yvette",     "Zoé"};

inline constexpr const char* PrenomsHomme[] = {
    "Adrien",      "Alain",         "Alexandre", "André",     "Antoine", "Arnaud",   "Aurélien",
    "Baptiste",    "Benjamin",      "Benoît",    "Bernard",   "Bruno",   "Cédric",   "Christian",
    "Christophe",  "Clément",       "Cyril",     "Damien",    "Daniel",  "David",    "Denis",
    "Didier",      "Dominique",     "Éric",      "Étienne",   "Fabrice", "Florian",  "Franck",
    "François",    "Frédéric",      "Gaël",      "Georges",   "Gérard",  "Gilles",   "Grégory",
    "Guillaume",   "Guy",           "Henri",     "Hervé",     "Hugo",    "Jacques",  "Jean",
    "Jean-Claude", "Jean-François", "Jean-Luc",  "Jérémy",    "Jérôme",  "Joël",     "Jonathan",
    "Julien",      "Kévin",         "Laurent",   "Lionel",    "Loïc",    "Luc",      "Ludovic",
    "Marc",        "Marcel",        "Mathieu",   "Maxime",    "Michel",  "Mickaël",  "Mohamed",
    "Nicolas",     "Olivier",       "Pascal",    "Patrick",   "Paul",    "Philippe", "Pierre",
    "Raphaël",     "Raymond",       "Régis",     "Rémi",      "René",    "Richard",  "Robert",
    "Roger",       "Romain",        "Samuel",    "Sébastien", "Serge",   "Stéphane", "Sylvain",
    "Théo",        "Thierry",       "Thomas",    "Vincent",   "Xavier",  "Yann",     "Yannick",
    "Yves"};

inline constexpr const char* NomsVoie[] = {
    "de la Fontaine",       "des Lilas",        "du Moulin",    "de l'Église",    "Victor Hugo",
    "du Général de Gaulle", "des Tilleuls",     "Jean Jaurès",  "de la Gare",     "Pasteur",
    "des Écoles",           "du Stade",         "de la Forêt",  "des Acacias",    "Jules Ferry",
    "du Château",           "de Verdun",        "de la Mairie", "des Primevères", "du Vieux Puits",
    "Louis Aragon",         "de la République", "des Prés",     "du Pont Neuf"};

struct Commune {
  const char* codePostal;
  const char* nom;
};
inline constexpr Commune Communes[] = {
    {"35300", "Fougères"},      {"35500", "Vitré"},     {"53100", "Mayenne"},
    {"53000", "Laval"},         {"50300", "Avranches"}, {"50600", "Saint-Hilaire-du-Harcouët"},
    {"61700", "Domfront"},      {"61100", "Flers"},     {"72000", "Le Mans"},
    {"49400", "Saumur"},        {"22100", "Dinan"},     {"56300", "Pontivy"},
    {"44110", "Châteaubriant"}, {"35600", "Redon"},     {"29300", "Quimperlé"}};

}  // namespace demo
