<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Sale summary</source>
        <translation>Resumen de venta</translation>
    </message>
    <message>
        <source>You have previously registered the order!</source>
        <translation>¡Ya registraste este pedido!</translation>
    </message>
    <message>
        <source>This order was sent to your cart, if you want to change the quantity, remember that you can do it in your shopping cart.</source>
        <translation>Este pedido fue enviado a tu carrito. Si quieres cambiar la cantidad, recuerda que puedes hacerlo en tu carrito de compras.</translation>
    </message>
    <message>
        <source>Go to home screen</source>
        <translation>Ir a la pantalla de inicio</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>Recuerda</translation>
    </message>
    <message>
        <source>You can continue collecting your sales until you reach the desired score to place your New Order.</source>
        <translation>Puedes seguir acumulando tus ventas hasta alcanzar el puntaje deseado para realizar tu Nuevo Pedido.</translation>
    </message>
    <message>
        <source>Go to cart</source>
        <translation>Ir al carrito</translation>
    </message>
    <message>
        <source>Go to cart button</source>
        <translation>Botón ir al carrito</translation>
    </message>
    <message>
        <source>We're sorry, but this information is no longer available.</source>
        <translation>Lo sentimos, pero esta información ya no está disponible.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Go back button</source>
        <translation>Botón volver</translation>
    </message>
    <message>
        <source>Products unavailable by stock</source>
        <translation>Productos no disponibles por stock</translation>
    </message>
    <message>
        <source>Products unavailable by quota</source>
        <translation>Productos no disponibles por cuota</translation>
    </message>
    <message>
        <source>Products not found</source>
        <translation>Productos no encontrados</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Envío al carrito</translation>
    </message>
    <message>
        <source>Whoops, we had a problem!</source>
        <translation>¡Ups, tuvimos un problema!</translation>
    </message>
    <message>
        <source>We are experiencing instability in our systems. Please try again later.</source>
        <translation>Estamos experimentando inestabilidad en nuestros sistemas. Por favor, inténtalo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Another consultant registered the order earlier!</source>
        <translation>¡Otra consultora registró el pedido antes!</translation>
    </message>
    <message>
        <source>If you want to add the products to the shopping cart, ask your customer to access the interactive digital magazine again and create a new order.</source>
        <translation>Si quieres agregar los productos al carrito, pide a tu cliente que acceda nuevamente a la revista digital interactiva y cree un nuevo pedido.</translation>
    </message>
    <message>
        <source>Share Magazine</source>
        <translation>Compartir revista</translation>
    </message>
    <message>
        <source>Code: </source>
        <translation>Code: %n</translation>
    </message>
    <message numerus="yes">
        <source>points count</source>
        <translation>
            <numerusform>%n punto</numerusform>
            <numerusform>%n puntos</numerusform>
        </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>This is taking longer than usual.</source>
        <translation>Está tardando más de lo habitual.</translation>
    </message>
</context>
</TS>
