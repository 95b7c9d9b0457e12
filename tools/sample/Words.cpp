#include "Words.h"

using namespace Qt::StringLiterals;

namespace Words {

namespace {

QStringList Split(const QString& words)
{
    return words.simplified().split(u' ');
}

QStringList SplitPhrases(const QString& phrases)
{
    return phrases.simplified().split(u", "_s);
}

// Places in the list of states, which is not quite alphabetical.
constexpr int Delaware = 8;
constexpr int NewJersey = 34;
constexpr int Pennsylvania = 44;

} // namespace

const QStringList& WomensNames()
{
    static const QStringList names = Split(
        u"Abigail Alice Amanda Amy Andrea Angela Anita Anna Annette April Audrey Barbara Beatrice Becky Bernice Beth "
        u"Bonnie Brenda Camila Carla Carmen Carol Caroline Catherine Celia Charlotte Christina Claire Claudia Colleen "
        u"Connie Crystal Cynthia Daisy Dana Deborah Denise Diana Donna Doris Dorothy Edith Eileen Elaine Eleanor Elena "
        u"Elizabeth Ellen Emily Emma Erica Erin Esther Eva Evelyn Faith Felicia Fiona Florence Frances Gabriela Gail "
        u"Gina Gloria Grace Gwen Hannah Harriet Heather Heidi Helen Holly Ida Irene Isabel Jackie Jane Janet Janice "
        u"Jasmine Jean Jennifer Jessica Jill Joan Joanna Jocelyn Joyce Judith Julia June Karen Kate Kathleen Kayla "
        u"Kelly "
        u"Kim Kristen Laura Lauren Leah Lena Leslie Lillian Linda Lisa Lois Loretta Lorraine Louise Lucy Lydia Lynn "
        u"Mabel Madison Maggie Marcia Margaret Maria Marie Marilyn Martha Mary Maureen Megan Melanie Melissa Mia "
        u"Michelle Mildred Miriam Molly Monica Nadia Nancy Naomi Natalie Nicole Nina Nora Norma Olga Olivia Paige "
        u"Pamela "
        u"Patricia Paula Pauline Penny Phyllis Priya Rachel Ramona Rebecca Renee Rita Roberta Robin Rosa Rose Ruth "
        u"Samantha Sandra Sarah Shannon Sharon Sheila Shirley Sofia Stacy Stella Stephanie Susan Sylvia Tamara Tanya "
        u"Teresa Theresa Tina Tracy Ursula Valerie Vanessa Vera Veronica Victoria Violet Virginia Vivian Wanda Wendy "
        u"Yolanda Yvonne Zoe"_s);
    return names;
}

const QStringList& MensNames()
{
    static const QStringList names = Split(
        u"Aaron Adam Adrian Alan Albert Alex Alfred Allen Alvin Andre Andrew Anthony Antonio Arnold Arthur Barry Ben "
        u"Bernard Bill Bradley Brandon Brendan Brian Bruce Bryan Calvin Carl Carlos Cesar Charles Chester Chris "
        u"Clarence "
        u"Clifford Clyde Craig Curtis Dale Daniel Darren David Dean Dennis Derek Diego Dominic Donald Douglas Duane "
        u"Dwight Earl Eddie Edgar Edward Edwin Eli Elliot Emanuel Eric Ernest Ethan Eugene Evan Felix Floyd Francis "
        u"Frank "
        u"Fred Gabriel Gary George Gerald Gilbert Glenn Gordon Graham Greg Gus Harold Harry Harvey Hector Henry "
        u"Herbert "
        u"Herman Howard Hugh Ian Isaac Ivan Jack Jacob Jaime James Jared Jason Javier Jay Jeff Jeremy Jerome Jesse Jim "
        u"Joel John Jonathan Jorge Jose Joseph Josh Juan Julian Justin Karl Keith Kenneth Kevin Kurt Kyle Lance Larry "
        u"Lawrence Lee Leo Leon Leonard Leroy Lester Lewis Lloyd Logan Louis Lucas Luis Luke Malik Manuel Marcus Mario "
        u"Mark Marshall Martin Marvin Mateo Matthew Maurice Max Melvin Michael Miguel Milton Mitchell Nathan Neil "
        u"Nicholas Noah Norman Oliver Omar Oscar Owen Pablo Patrick Paul Pedro Perry Peter Philip Rafael Ralph Ramon "
        u"Randy Raul Ray Reggie Rex Richard Rick Robert Rodney Roger Roland Ron Ross Roy Ruben Russell Ryan Salvador "
        u"Sam "
        u"Samuel Scott Sean Sergio Seth Sidney Simon Stanley Stephen Steve Stuart Ted Terrence Theo Thomas Tim Todd "
        u"Tom "
        u"Tony Travis Trevor Troy Tyler Vernon Victor Vincent Wade Wallace Walter Warren Wayne Wesley Wilbur Willard "
        u"William Zachary"_s);
    return names;
}

const QStringList& LastNames()
{
    static const QStringList names = Split(
        u"Abbott Abrams Acosta Adams Adler Aguilar Albright Alexander Allen Alvarez Anderson Andrews Archer Armstrong "
        u"Arnold Ashby Atkins Austin Avery Bailey Baker Baldwin Ballard Banks Barber Barker Barlow Barnes Barnett "
        u"Barrett "
        u"Barton Bates Bauer Beck Becker Bell Benitez Bennett Benson Berg Berger Bishop Black Blair Blake Bowen Bowman "
        u"Boyd Bradley Brady Brennan Brewer Briggs Brooks Brown Bryant Buchanan Burke Burns Burton Butler Byrne "
        u"Caldwell "
        u"Callahan Cameron Campbell Cannon Cardenas Carey Carlson Carpenter Carr Carroll Carter Casey Castillo Castro "
        u"Chambers Chan Chandler Chang Chapman Chavez Chen Cho Christensen Clark Clarke Clayton Cohen Cole Coleman "
        u"Collins "
        u"Conner Conway Cook Cooper Corbett Costa Cox Craig Crane Crawford Cross Cruz Cummings Cunningham Curtis "
        u"Dalton "
        u"D'Angelo Daniels Davidson Davis Dawson Day Delgado Diaz Dixon Dominguez Donnelly Douglas Doyle Drake Duffy "
        u"Duncan Dunn Duran Eastman Eaton Edwards Elliott Ellis Ellsworth Emerson Erickson Espinoza Estrada Evans "
        u"Farrell "
        u"Ferguson Fernandez Fields Figueroa Finch Fischer Fisher Fitzgerald Fleming Fletcher Flores Flynn Foley Ford "
        u"Foster Fowler Fox Francis Franco Frank Franklin Fraser Freeman Frost Fuller Gallagher Garcia Gardner Garner "
        u"Garrett Garza George Gibbs Gibson Gilbert Gill Glass Glover Goldberg Gomez Gonzalez Goodman Goodwin Gordon "
        u"Graham Grant Graves Gray Greenberg Greene Greer Griffin Gross Guerrero Gupta Gutierrez Hale Hall Hamilton "
        u"Hammond Hanna Hansen Hanson Hardy Harmon Harper Harris Harrison Hart Hartman Harvey Hawkins Hayes Haynes "
        u"Heath "
        u"Henderson Henry Hernandez Herrera Hicks Higgins Hill Hines Hobbs Hoffman Hogan Holland Holmes Holt Hopkins "
        u"Horton Houston Howard Howell Huang Hubbard Hudson Huff Hughes Hunt Hunter Hurley Ingram Irwin Jacobs James "
        u"Jenkins Jennings Jensen Jimenez Johnson Johnston Jones Jordan Joseph Joyce Juarez Kaplan Keller Kelley Kemp "
        u"Kennedy Kerr Khan Kim King Kirby Klein Knight Kowalski Kramer Lambert Lane Lang Larson Lawrence Lawson Leach "
        u"Leblanc Lee Leonard Leone Levine Levy Lewis Lin Lindsey Little Livingston Lloyd Logan Long Lopez Lowe Lucas "
        u"Luna Lynch Lyons Mack Mahoney Maldonado Malone Mann Manning Marino Marks Marquez Marshall Martin Martinez "
        u"Mason "
        u"Mathis Matthews Maxwell May Mays McCarthy McCormick McCoy McDaniel McDonald McGee McGuire McKay McKenna "
        u"McLaughlin McMahon McNeil Medina Mejia Mendez Mercer Meyer Meyers Middleton Miles Miller Mills Miranda "
        u"Mitchell "
        u"Molina Monroe Montgomery Moody Moon Moore Morales Moran Moreno Morgan Morris Morrison Morrow Morse Morton "
        u"Moss "
        u"Mueller Mullen Munoz Murphy Murray Myers Nash Navarro Neal Nelson Newman Newton Nguyen Nichols Nicholson "
        u"Noble "
        u"Nolan Norman Norris Norton Novak Nunez O'Brien O'Connor O'Donnell O'Neill Oliver Olsen Ortega Ortiz Osborne "
        u"Owens Pace Padilla Page Palmer Park Parker Parks Parrish Parsons Patel Patrick Patterson Paul Payne Pearson "
        u"Pena "
        u"Perez Perkins Perry Peters Peterson Phelps Phillips Pierce Pittman Poole Pope Porter Potter Powell Powers "
        u"Pratt "
        u"Price Quinn Ramirez Ramos Ramsey Randall Rao Rasmussen Reed Reese Reeves Reilly Reyes Reynolds Rhodes Rice "
        u"Richards Richardson Riley Rios Rivera Robbins Roberts Robertson Robinson Robles Rodgers Rodriguez Rogers "
        u"Roman "
        u"Romano Romero Rosario Rose Rosen Ross Rossi Rowe Roy Rubin Ruiz Russell Russo Ryan Salazar Salinas Sanchez "
        u"Sanders Sandoval Santiago Santos Saunders Savage Sawyer Schmidt Schneider Schroeder Schultz Schwartz Scott "
        u"Sears "
        u"Serrano Sexton Shah Shannon Sharp Shaw Shelton Shepherd Sherman Shields Short Silva Simmons Simon Simpson "
        u"Sims "
        u"Singh Singleton Skinner Sloan Small Snow Snyder Solis Soto Sparks Spencer Stafford Stanley Stark Stein "
        u"Stephens "
        u"Stevens Stewart Stokes Stone Strickland Strong Sullivan Summers Sutton Sweeney Tanner Tate Taylor Terrell "
        u"Thomas "
        u"Thompson Thornton Todd Torres Townsend Tran Trujillo Tucker Turner Tyler Underwood Valdez Valentine Vance "
        u"Vargas "
        u"Vasquez Vaughn Vega Velez Wade Wagner Walker Wallace Walsh Walters Walton Wang Ward Warner Warren Watkins "
        u"Watson "
        u"Watts Weaver Webb Weber Webster Weeks Weiss Welch Wells West Whitaker White Whitehead Whitney Wiggins Wilcox "
        u"Wilder Wiley Wilkins Wilkinson Williams Williamson Willis Wilson Winters Wise Wolf Wong Wood Woodard Woods "
        u"Wright "
        u"Wu Wyatt Yang Yates York Young Zhang Zimmerman"_s);
    return names;
}

const QStringList& StreetNames()
{
    static const QStringList names = SplitPhrases(
        u"Acorn, Adams, Alder, Appletree, Arbor, Arlington, Ash, Aspen, Barnsley, Bayberry, Beacon, Beechwood, Bell, "
        u"Belmont, Birch, Blackburn, Bluebird, Bridge, Brookside, Buckingham, Butternut, Cambridge, Canterbury, "
        u"Cardinal, "
        u"Carriage, Castle, Cedar, Cedar Hollow, Center, Chapel, Cherry, Chestnut, Church, Clearview, Clover, "
        u"Cobblestone, "
        u"College, Concord, Cottage, Country Club, Creekside, Crescent, Cricket, Dairy, Deer Run, Delaware, Devon, "
        u"Dogwood, "
        u"Dover, Eagle, East Main, Edgewood, Elm, Evergreen, Fairfield, Fairview, Farmhouse, Fern, Fieldstone, Forest, "
        u"Fox Hollow, Franklin, Garden, Gatehouse, Glen Mills, Glenwood, Grand, Grange, Grant, Green, Greenbriar, "
        u"Grove, "
        u"Hamilton, Harbor, Harvest, Hawthorne, Hazel, Heather, Hemlock, Heritage, Hickory, High, Highland, Hillcrest, "
        u"Hilltop, Holly, Homestead, Hunter, Ivy, Jefferson, Juniper, Kensington, Kings, Lafayette, Lake, Lakeview, "
        u"Lancaster, "
        u"Larch, Laurel, Lexington, Liberty, Lilac, Linden, Locust, Longwood, Magnolia, Main, Maple, Market, Meadow, "
        u"Meadowbrook, Merion, Mill, Millstone, Monroe, Montgomery, Morning Glory, Mulberry, New, North, Oak, Oakmont, "
        u"Old Mill, Old Orchard, Orchard, Overbrook, Oxford, Paddock, Park, Partridge, Pear Tree, Pebble, Penn, "
        u"Pheasant, "
        u"Pine, Pinecrest, Pleasant, Plum, Poplar, Prospect, Providence, Quail, Quarry, Railroad, Raven, Ridge, River, "
        u"Robin, Rolling Hills, Rose, Rosemont, Sandstone, School, Scotland, Sheffield, Shady, Somerset, South, "
        u"Spring, "
        u"Spring Garden, Springhouse, Spruce, Stable, State, Station, Stonebridge, Stratford, Summit, Sunny, Sunrise, "
        u"Sycamore, Tanglewood, Tavern, Thornbury, Timber, Twin Oaks, Union, Valley, Valley Forge, Victoria, Vine, "
        u"Vista, "
        u"Walnut, Warwick, Washington, Waterford, Waverly, Wayne, Wellington, West, Westover, Whitehall, Wildflower, "
        u"Willow, "
        u"Winding, Windsor, Wisteria, Wood, Woodland, Wyndham, Yorktown"_s);
    return names;
}

const QStringList& StreetKinds()
{
    static const QStringList kinds =
        Split(u"Street Street Street Avenue Avenue Road Road Lane Lane Drive Drive Court Place Way Circle"_s);
    return kinds;
}

const QStringList& Subdivisions()
{
    static const QStringList names = SplitPhrases(
        u"Ashbourne Hills, Brandywine Ridge, Chestnut Grove, Cobbs Landing, Country View Estates, Fairmount Commons, "
        u"Fox Chase Manor, Greene Countrie, Harbor Point, Heritage Square, Hunters Run, Kings Crossing, Lakeside "
        u"Village, "
        u"Laurel Woods, Meadowbrook Farms, Millers Pond, Northgate, Old Orchard Park, Penn Estates, Quail Hollow, "
        u"River Bend, Rolling Meadows, Spring Valley, Stonegate, The Pines, Valley Green, Waterford Mews, Willow Creek"_s);
    return names;
}

const QStringList& CompanyKinds()
{
    static const QStringList kinds = SplitPhrases(
        u"and Associates, Advisors, Builders, Consulting, Design Group, Dental Care, Electric, Family Practice, "
        u"Financial, "
        u"Garden Center, Hardware, Holdings, Insurance Agency, Landscaping, Law Offices, Logistics, Motors, Partners, "
        u"Plumbing and Heating, Properties, Roofing, Services, Software, Supply Company, Technologies"_s);
    return kinds;
}

const std::vector<Town>& Towns()
{
    static const QStringList city{u"215"_s, u"267"_s};
    static const QStringList suburbs{u"610"_s, u"484"_s};
    static const QStringList north{u"215"_s, u"267"_s};
    static const QStringList across{u"856"_s};
    static const QStringList south{u"302"_s};
    static const std::vector<Town> towns{
        {u"Philadelphia"_s, Pennsylvania, u"19103"_s, city},
        {u"Philadelphia"_s, Pennsylvania, u"19118"_s, city},
        {u"Philadelphia"_s, Pennsylvania, u"19128"_s, city},
        {u"Philadelphia"_s, Pennsylvania, u"19147"_s, city},
        {u"Abington"_s, Pennsylvania, u"19001"_s, north},
        {u"Ambler"_s, Pennsylvania, u"19002"_s, north},
        {u"Ardmore"_s, Pennsylvania, u"19003"_s, suburbs},
        {u"Bryn Mawr"_s, Pennsylvania, u"19010"_s, suburbs},
        {u"Doylestown"_s, Pennsylvania, u"18901"_s, north},
        {u"Havertown"_s, Pennsylvania, u"19083"_s, suburbs},
        {u"Jenkintown"_s, Pennsylvania, u"19046"_s, north},
        {u"King of Prussia"_s, Pennsylvania, u"19406"_s, suburbs},
        {u"Lansdale"_s, Pennsylvania, u"19446"_s, north},
        {u"Media"_s, Pennsylvania, u"19063"_s, suburbs},
        {u"Narberth"_s, Pennsylvania, u"19072"_s, suburbs},
        {u"Newtown"_s, Pennsylvania, u"18940"_s, north},
        {u"Phoenixville"_s, Pennsylvania, u"19460"_s, suburbs},
        {u"Swarthmore"_s, Pennsylvania, u"19081"_s, suburbs},
        {u"Wayne"_s, Pennsylvania, u"19087"_s, suburbs},
        {u"West Chester"_s, Pennsylvania, u"19380"_s, suburbs},
        {u"Cherry Hill"_s, NewJersey, u"08002"_s, across},
        {u"Collingswood"_s, NewJersey, u"08108"_s, across},
        {u"Haddonfield"_s, NewJersey, u"08033"_s, across},
        {u"Moorestown"_s, NewJersey, u"08057"_s, across},
        {u"Voorhees"_s, NewJersey, u"08043"_s, across},
        {u"Claymont"_s, Delaware, u"19703"_s, south},
        {u"Newark"_s, Delaware, u"19711"_s, south},
        {u"Wilmington"_s, Delaware, u"19803"_s, south},
    };
    return towns;
}

const std::vector<Letter>& Letters()
{
    static const std::vector<Letter> letters{
        {u"Welcome"_s,
         u"!<FormattedName>!\r\n!<MailAddr1>!\r\n!<MailCity>!, !<MailState>! !<MailZip>!\r\n\r\nDear "
         u"!<Salutation>!,\r\n\r\n"
         u"Thank you for letting me help you with your move. I will call you this week to hear what matters most to "
         u"you, and I will send you new homes as soon as they come on the market.\r\n\r\nIf a question comes up before "
         u"then, please call me at any time.\r\n\r\nSincerely,\r\n"_s},
        {u"Listing Expires Soon"_s,
         u"Dear !<Salutation>!,\r\n\r\nThe listing of your property at !<Addr1>! in !<City>! ends on "
         u"<b>!<ExpDate>!</b>. It is offered at !<AskingPrice>!.\r\n\r\nI would like to sit down with you and "
         u"look at what has sold nearby, so that we can decide together how to go on.\r\n\r\nSincerely,\r\n"_s},
        {u"Just Listed"_s,
         u"Dear !<FirstName>!,\r\n\r\nGood news: !<Addr1>!, !<City>!, has been listed since !<ListingDate>! under the "
         u"number !<MLS>!.\r\n\r\nIt has !<Rooms>! rooms, !<Baths>! baths and !<SqFt>! square feet. Please look over "
         u"the description and tell me if there is anything that I should add.\r\n\r\nSincerely,\r\n"_s},
        {u"Lease Renewal"_s,
         u"Dear !<Salutation>!,\r\n\r\nThe lease on !<Addr1>! !<Addr2>! expires on !<LeaseExpires>!. The rent is now "
         u"!<RentalAmount>! (!<RentalBasis>!).\r\n\r\nShall I prepare a renewal, or would you rather have me look "
         u"for a new tenant? A short answer by telephone is enough.\r\n\r\nSincerely,\r\n"_s},
        {u"Happy Anniversary"_s,
         u"Dear !<FirstName>! and !<Spouse>!,\r\n\r\nIt is a year since you got the keys. I hope that the house has "
         u"become a home.\r\n\r\nIf you would like to know what it would bring today, I will gladly work it out "
         u"for you, free and without obligation.\r\n\r\nWarm regards,\r\n"_s},
        {u"Thank You for the Referral"_s,
         u"Dear !<Salutation>!,\r\n\r\nThank you for giving my name to your friends. The trust of people "
         u"like you is what my work lives on, and I will take good care of them.\r\n\r\nSincerely,\r\n"_s},
        {u"Open House"_s,
         u"Dear !<FirstName>!,\r\n\r\nPlease come to our open house <b>this Sunday from one to four</b>. Coffee and "
         u"cake "
         u"are waiting, and so are five homes that have not been shown before.\r\n\r\nI look forward to seeing "
         u"you.\r\n\r\nSincerely,\r\n"_s},
    };
    return letters;
}

} // namespace Words
