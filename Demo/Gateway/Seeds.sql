-- One consultant and one cart for each outcome.

INSERT INTO cycles (code, starts, ends) VALUES
    (202605, '2026-03-01T00:00:00.000+0000', '2026-03-21T23:59:59.000+0000'),
    (202606, '2026-03-22T00:00:00.000+0000', '2026-04-11T23:59:59.000+0000');

INSERT INTO consultants (id, country, cycle) VALUES
    (40999, 'CL', 202605), -- the one who was faster
    (41051, 'CL', 202605), (41052, 'CL', 202605), (41053, 'CL', 202605), (41054, 'CL', 202605),
    (41055, 'CL', 202605), (41056, 'CL', 202605), (41057, 'CL', 202605), (41058, 'CL', 202605),
    (41059, 'CL', 202605), (41060, 'CL', 202605), (41061, 'CL', 202605), (41062, 'CL', 202605),
    (41063, 'CL', 202605), (41064, 'CL', 202605), (41065, 'CL', 202605), (41066, 'CL', 202605),
    (41067, 'PE', NULL),   (41068, 'CL', 202605), (41069, 'CL', 202605), (41070, 'CL', 202605),
    (41071, 'CL', 202605);

INSERT INTO catalogue (code, description, points, points_units, price, profit, kit, stock) VALUES
    (70412, 'Crema de manos Brisa de almendra 75 ml',        12, 1,  899000,  269700, 0, 500),
    (81190, 'Perfume Luz de tarde 100 ml',                   38, 1, 3299000,  989700, 0, 300),
    (90318, 'Labial mate Arcilla rosada',                     6, 1,  649000,  194700, 0, 2),
    (61204, 'Champú sólido Romero y limón, repuesto 90 g',   10, 3,  599000,  179700, 0, 400),
    (55120, 'Colonia Bosque claro 150 ml',                   45, 1, 2799000,  839700, 0, 120),
    (70435, 'Jabón de avena en barra, caja de 5',            16, 1,  499000,  137225, 0, 250),
    (64077, 'Base fluida Alba tono 20',                      32, 1, 1549000,  464700, 0, 90),
    (99001, 'Kit Verano: bolso, bruma y protector',          80, 1, 4599000, 1379700, 1, 60),
    (88210, 'Mascarilla de arcilla verde 60 g',              14, 1,  749000,  224700, 0, 80),
    (10005, 'Muestra de perfume 1 ml',                        1, 1,   99050,   29715, 0, 900);

-- Twelve of the shampoo are more than one consultant may send; of the lipstick fewer are left than anyone orders.
INSERT INTO quotas (product, units) VALUES (61204, 6);

INSERT INTO carts (uuid, number, consultant, status, created, magazine_cycle) VALUES
    ('41051a00-52e1-4d0b-9c77-1f0a6b2e8451', 300051, NULL,  'OPEN',      '2026-03-14T12:00:00.000+0000', 202605),
    -- Consultant 41052 has earlier and later orders of her own, and two from the next cycle's magazine, which wait
    -- for that cycle to begin: her points in progress are 24 + 86 + 10 + 740 + 380 = 1240.
    ('41052b01-52e1-4d0b-9c77-1f0a6b2e84d1', 300152, 41052, 'OPEN',      '2026-03-12T15:20:00.000+0000', 202605),
    ('7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3', 300052, NULL,  'OPEN',      '2026-03-14T12:00:00.000+0000', 202605),
    ('41052b02-52e1-4d0b-9c77-1f0a6b2e84d4', 300252, 41052, 'OPEN',      '2026-03-14T14:45:00.000+0000', 202605),
    ('41052b03-52e1-4d0b-9c77-1f0a6b2e84d5', 300352, 41052, 'OPEN',      '2026-03-15T09:10:00.000+0000', 202606),
    ('41052b04-52e1-4d0b-9c77-1f0a6b2e84d6', 300452, 41052, 'OPEN',      '2026-03-15T18:30:00.000+0000', 202606),
    ('41053a00-52e1-4d0b-9c77-1f0a6b2e8453', 300053, NULL,  'OPEN',      '2026-03-14T12:05:00.000+0000', 202605),
    ('41054a00-52e1-4d0b-9c77-1f0a6b2e8454', 300054, NULL,  'EXPIRED',   '2026-03-14T12:10:00.000+0000', 202605),
    ('41055a00-52e1-4d0b-9c77-1f0a6b2e8455', 300055, NULL,  'OPEN',      '2026-03-14T12:15:00.000+0000', 202605),
    ('41056a00-52e1-4d0b-9c77-1f0a6b2e8456', 300056, NULL,  'OPEN',      '2026-03-14T12:20:00.000+0000', 202605),
    ('41057a00-52e1-4d0b-9c77-1f0a6b2e8457', 300057, 41057, 'SUBMITTED', '2026-03-14T12:25:00.000+0000', 202605),
    ('41058a00-52e1-4d0b-9c77-1f0a6b2e8458', 300058, 40999, 'OPEN',      '2026-03-14T12:30:00.000+0000', 202605),
    ('41059a00-52e1-4d0b-9c77-1f0a6b2e8459', 300059, NULL,  'OPEN',      '2026-03-14T12:35:00.000+0000', 202605),
    ('41060a00-52e1-4d0b-9c77-1f0a6b2e8460', 300060, NULL,  'OPEN',      '2026-03-14T12:40:00.000+0000', 202605),
    ('41061a00-52e1-4d0b-9c77-1f0a6b2e8461', 300061, NULL,  'OPEN',      '2026-03-14T12:45:00.000+0000', 202605),
    ('41062a00-52e1-4d0b-9c77-1f0a6b2e8462', 300062, NULL,  'OPEN',      '2026-03-14T12:50:00.000+0000', 202605),
    ('41063a00-52e1-4d0b-9c77-1f0a6b2e8463', 300063, NULL,  'OPEN',      '2026-03-14T12:55:00.000+0000', 202605),
    ('41064a00-52e1-4d0b-9c77-1f0a6b2e8464', 300064, NULL,  'OPEN',      '2026-03-14T13:00:00.000+0000', 202605),
    ('41065a00-52e1-4d0b-9c77-1f0a6b2e8465', 300065, NULL,  'OPEN',      '2026-03-14T13:05:00.000+0000', 202605),
    ('41066a00-52e1-4d0b-9c77-1f0a6b2e8466', 300066, NULL,  'OPEN',      '2026-03-14T13:10:00.000+0000', 202605),
    ('41067a00-52e1-4d0b-9c77-1f0a6b2e8467', 300067, NULL,  'OPEN',      '2026-03-14T13:15:00.000+0000', 202605),
    ('41068a00-52e1-4d0b-9c77-1f0a6b2e8468', 300068, NULL,  'OPEN',      '2026-03-14T13:20:00.000+0000', 202605),
    -- The outcome of 41052 again, for plays that are about something else.
    ('41069a00-52e1-4d0b-9c77-1f0a6b2e8469', 300069, NULL,  'OPEN',      '2026-03-14T13:25:00.000+0000', 202605),
    ('41070a00-52e1-4d0b-9c77-1f0a6b2e8470', 300070, NULL,  'OPEN',      '2026-03-14T13:30:00.000+0000', 202605),
    ('41071a00-52e1-4d0b-9c77-1f0a6b2e8471', 300071, NULL,  'OPEN',      '2026-03-14T13:35:00.000+0000', 202605);

CREATE TEMP TABLE ordered (cart INTEGER, position INTEGER, benefit INTEGER, product INTEGER, amount INTEGER);
INSERT INTO ordered VALUES
    (300152, 1, 0, 70412, 2),
    (300052, 1, 0, 81190, 1), (300052, 2, 0, 90318, 3), (300052, 3, 0, 61204, 9),
    (300252, 1, 0, 61204, 3),
    (300352, 1, 0, 99001, 5), (300352, 2, 0, 55120, 4), (300352, 3, 0, 70435, 10),
    (300452, 1, 0, 64077, 5), (300452, 2, 0, 99001, 2), (300452, 3, 0, 70412, 5), (300452, 4, 1, 10005, 1),
    (300053, 1, 0, 90318, 3), (300053, 2, 0, 61204, 12),
    (300067, 1, 0, 10005, 1),
    (300068, 1, 0, 70412, 1), (300068, 2, 0, 90318, 4), (300068, 3, 0, 61204, 9), (300068, 4, 0, 88210, 2),
    (300068, 5, 1, 10005, 2),
    (300069, 1, 0, 81190, 1), (300069, 2, 0, 90318, 3), (300069, 3, 0, 61204, 9),
    (300070, 1, 0, 81190, 1), (300070, 2, 0, 90318, 3), (300070, 3, 0, 61204, 9),
    (300071, 1, 0, 81190, 1), (300071, 2, 0, 90318, 3), (300071, 3, 0, 61204, 9);
-- Everybody else ordered the same two products.
INSERT INTO ordered
    SELECT number, 1, 0, 70412, 2 FROM carts WHERE number NOT IN (SELECT cart FROM ordered);
INSERT INTO ordered
    SELECT cart, 2, 0, 81190, 1 FROM ordered WHERE cart BETWEEN 300051 AND 300066 AND product = 70412;

-- A benefit is a present: it earns no points and costs nothing.
INSERT INTO cart_lines
    SELECT carts.uuid, position, benefit, product, description, amount,
           iif(benefit, 0, points / points_units), iif(benefit, 0, amount * points / points_units),
           iif(benefit, 0, price), iif(benefit, 0, profit), kit
    FROM ordered JOIN carts ON carts.number = ordered.cart JOIN catalogue ON catalogue.code = ordered.product;
DROP TABLE ordered;

-- The mask left the catalogue after it had been ordered.
DELETE FROM catalogue WHERE code = 88210;

INSERT INTO faults (consultant, call, kind, value, remaining) VALUES
    (41055, 'associate', 'status',    '504', NULL),
    (41056, 'associate', 'status',    '500', NULL),
    (41059, 'associate', 'malformed', '',    NULL),
    (41060, 'checkout',  'malformed', '',    NULL),
    (41061, 'checkout',  'cut',       '',    NULL),
    (41062, 'checkout',  'silence',   '',    NULL),
    (41063, 'checkout',  'close',     '',    NULL),
    (41064, 'open',      'status',    '500', NULL),
    (41065, 'checkout',  'status',    '500', 1),
    (41066, 'associate', 'status',    '504', 1);

INSERT INTO incoming (cart, consultant, title, customer, message) VALUES
    ('41051a00-52e1-4d0b-9c77-1f0a6b2e8451', 41051, 'Everything is added', 'Valentina Rojas',
     '¡Hola! Te mando mi pedido de la revista. ¡Gracias!'),
    ('7f3c9a10-52e1-4d0b-9c77-1f0a6b2e84d3', 41052, 'Some products are added', 'Camila Fuentes',
     'Hola, este es mi pedido de este ciclo. ¿Me avisas cuando llegue?'),
    ('41053a00-52e1-4d0b-9c77-1f0a6b2e8453', 41053, 'No product is added', 'Josefa Muñoz',
     'Te dejo mi pedido: labiales y el repuesto de champú.'),
    ('41054a00-52e1-4d0b-9c77-1f0a6b2e8454', 41054, 'Order expired before the checkout', 'Antonia Silva',
     'Perdón por la demora, aquí va mi pedido.'),
    ('41055a00-52e1-4d0b-9c77-1f0a6b2e8455', 41055, 'Association times out (504)', 'Isidora Contreras',
     '¡Hola! Elegí dos productos de la revista.'),
    ('41056a00-52e1-4d0b-9c77-1f0a6b2e8456', 41056, 'Association fails (500)', 'Martina Soto',
     'Aquí está mi pedido, avísame por favor.'),
    ('41057a00-52e1-4d0b-9c77-1f0a6b2e8457', 41057, 'Order already submitted', 'Florencia Araya',
     'Te reenvío mi pedido por si no te llegó.'),
    ('41058a00-52e1-4d0b-9c77-1f0a6b2e8458', 41058, 'Another consultant was first', 'Catalina Vergara',
     'Hola, ¿me ayudas con este pedido?'),
    ('41059a00-52e1-4d0b-9c77-1f0a6b2e8459', 41059, 'Association answered with nonsense', 'Emilia Castro',
     'Mi pedido de marzo. ¡Saludos!'),
    ('41060a00-52e1-4d0b-9c77-1f0a6b2e8460', 41060, 'Checkout answered with nonsense', 'Sofía Herrera',
     'Quiero la crema y el perfume, gracias.'),
    ('41061a00-52e1-4d0b-9c77-1f0a6b2e8461', 41061, 'Checkout cut in the middle', 'Agustina Reyes',
     '¡Listo! Ya armé mi pedido.'),
    ('41062a00-52e1-4d0b-9c77-1f0a6b2e8462', 41062, 'Checkout never answered', 'Renata Morales',
     'Buenas tardes, te mando lo que elegí.'),
    ('41063a00-52e1-4d0b-9c77-1f0a6b2e8463', 41063, 'Checkout taken, then closed', 'Maite Espinoza',
     'Hola, pedido nuevo para ti.'),
    ('41064a00-52e1-4d0b-9c77-1f0a6b2e8464', 41064, 'Open orders fail (500)', 'Trinidad Lagos',
     'Aquí va mi pedido, ¡que tengas buen día!'),
    ('41065a00-52e1-4d0b-9c77-1f0a6b2e8465', 41065, 'Checkout succeeds at the second try', 'Amanda Pizarro',
     'Te paso mi pedido de la semana.'),
    ('41066a00-52e1-4d0b-9c77-1f0a6b2e8466', 41066, 'Association succeeds at the second try', 'Ignacia Tapia',
     '¿Me guardas estos productos?'),
    ('41067a00-52e1-4d0b-9c77-1f0a6b2e8467', 41067, 'Between two cycles, one point', 'Luz Quispe',
     'Solo una muestra esta vez, gracias.'),
    ('41068a00-52e1-4d0b-9c77-1f0a6b2e8468', 41068, 'Every reason for not being added', 'Paula Navarrete',
     'Pedido grande: crema, labiales, champú y mascarilla.');
